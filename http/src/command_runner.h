// Running the device's command lines. A command that cannot be started is a failure like any other:
// the caller reports it and goes on with what it has.
#pragma once

#include <string>

// 0 when the command succeeded.
int runCommand(const std::string& command);

// True when the command succeeded. output is replaced by what it printed, without the line ends at its
// end, and waitStatus by its raw wait status.
bool runCommand(const std::string& command, std::string& output, int& waitStatus);
