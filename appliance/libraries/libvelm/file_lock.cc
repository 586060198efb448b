#include "libvelm/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <thread>

#include "libvelm/service_error.h"

namespace Velm {
namespace {

constexpr mode_t ForNobodyElse = 0600;
// flock itself waits without end, or not at all.
constexpr std::chrono::milliseconds BetweenAttempts(5);

int Lock(int descriptor, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return errno;
    if (std::chrono::steady_clock::now() >= end) return ETIMEDOUT;
    std::this_thread::sleep_for(BetweenAttempts);
  }
  return 0;
}

}  // namespace

FileLock::FileLock(const std::string& path, std::chrono::milliseconds patience)
    : descriptor_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, ForNobodyElse)) {
  const int error = descriptor_ < 0 ? errno : Lock(descriptor_, patience);
  if (error == 0) return;
  if (descriptor_ >= 0) close(descriptor_);
  throw ServiceError("lock " + path + ": " +
                     (error == ETIMEDOUT ? "another change is under way" : std::strerror(error)));
}

FileLock::~FileLock() {
  // Also when a process that was forked meanwhile has the descriptor, too.
  flock(descriptor_, LOCK_UN);
  close(descriptor_);
}

}  // namespace Velm
