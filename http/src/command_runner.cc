#include "command_runner.h"

#include "utility/Runtime.h"

CommandResult runCommand(const std::string& command, const std::string& previousOutput) {
  CommandResult result;
  result.output = previousOutput;
  result.succeeded = Runtime::getInstance()->execute(command, result.output, result.waitStatus);
  return result;
}

int runWithoutOutput(const std::string& command) { return Runtime::getInstance()->execute(command); }
