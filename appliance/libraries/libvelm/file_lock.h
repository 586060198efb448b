// One at a time, over threads and processes.
#pragma once

#include <chrono>
#include <string>

namespace Velm {

// Holds the lock that is the file at path, which is made when it is missing; it ends with the process, too.
class FileLock {
 public:
  // Throws ServiceError when it cannot be had within that time.
  FileLock(const std::string& path, std::chrono::milliseconds patience);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
  int descriptor_;
};

}  // namespace Velm
