#include "command_runner.h"

#include "utility/Runtime.h"

int runCommand(const std::string& command) { return Runtime::getInstance()->execute(command); }

bool runCommand(const std::string& command, std::string& output, int& waitStatus) {
  return Runtime::getInstance()->execute(command, output, waitStatus);
}
