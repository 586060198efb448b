// Runs command lines of the device. One per process; commands may run at the same time.
#pragma once

#include <string>

class Runtime {
 public:
  // Owned by the library.
  static Runtime* getInstance();

  // Runs the command and waits for it: 0 when it succeeded.
  int execute(std::string command);

  // Runs the command and waits for it: true when it succeeded. output is replaced by all that it
  // printed, without the line ends at its end. waitStatus receives the raw wait status: the exit
  // status times 256, or the number of the signal that ended it.
  bool execute(std::string command, std::string& output, int& waitStatus);
};
