// commands TIMES [--at-once] WORD... [-- WORD...]...: runs the commands one after the other, or all at the
// same time, TIMES times, and prints how many nanoseconds one time took. Their output is read and thrown
// away; one that fails ends the measurement.
#include <cstring>
#include <vector>

#include "bare.h"

namespace {

void runInTurn(const std::vector<char**>& commands) {
  for (char** const words : commands) {
    if (bare::run(words) != 0) bare::stop(words[0]);
  }
}

void runAtOnce(const std::vector<char**>& commands) {
  std::vector<bare::Command> running;
  for (char** const words : commands) running.push_back(bare::start(words));
  for (const bare::Command& command : running) {
    if (bare::readAndFinish(command) != 0) bare::stop("one of the commands");
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) return 2;
  const int times = std::atoi(arguments[1]);
  const bool atOnce = std::strcmp(arguments[2], "--at-once") == 0;
  if (atOnce && count < 4) return 2;
  std::vector<char**> commands = {arguments + (atOnce ? 3 : 2)};
  for (char** word = commands[0]; *word != nullptr; ++word) {
    if (std::strcmp(*word, "--") != 0) continue;
    *word = nullptr;
    commands.push_back(word + 1);
  }
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) atOnce ? runAtOnce(commands) : runInTurn(commands);
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
}
