// Runs commands that need nothing of one another at the same time.
#pragma once

#include <string>
#include <vector>

struct CommandAnswer {
  bool succeeded = false;
  std::string output;  // as Runtime gives it
};

// In the order of the commands. Where the process or the machine has no room for all of them at once, the
// others run one after the other when the first have ended. All of them are the caller's thread's own
// children, by which the pages know whom to end when it takes too long, and all have ended when this returns.
std::vector<CommandAnswer> runAtOnce(const std::vector<std::string>& commands);
