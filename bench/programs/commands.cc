// commands TIMES WORD... [-- WORD...]...: runs the commands one after the other, TIMES times, and prints how
// many nanoseconds one time took. Their output is read and thrown away; one that fails ends the measurement.
#include <cstring>
#include <vector>

#include "bare.h"

int main(int count, char** arguments) {
  if (count < 3) return 2;
  const int times = std::atoi(arguments[1]);
  std::vector<char**> commands = {arguments + 2};
  for (char** word = arguments + 2; *word != nullptr; ++word) {
    if (std::strcmp(*word, "--") != 0) continue;
    *word = nullptr;
    commands.push_back(word + 1);
  }
  const double start = bare::nanoseconds();
  for (int time = 0; time < times; ++time) {
    for (char** const words : commands) {
      if (bare::run(words) != 0) bare::stop(words[0]);
    }
  }
  std::printf("%.1f\n", (bare::nanoseconds() - start) / times);
}
