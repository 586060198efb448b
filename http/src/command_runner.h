// Running the device's command lines. A command that cannot be started is a failure like any other:
// the caller reports it and goes on with what it has.
#pragma once

#include <string>

struct CommandResult {
  bool succeeded = false;
  std::string output;  // what it printed, without the line ends at its end
  int waitStatus = 0;  // as wait() gives it: the exit status times 256
};

// previousOutput is what the output stays when the command cannot even be started and the runner leaves it
// alone.
CommandResult runCommand(const std::string& command, const std::string& previousOutput = std::string());

// For commands whose output says nothing. 0 when the command succeeded.
int runWithoutOutput(const std::string& command);
