// output_of_64_mib runtime|bare time|memory COMMAND...: reads the output of the command, 64 MiB, by Runtime
// or into a buffer that was reserved for it. Prints the nanoseconds, or by how many bytes the process grew at
// most.
#include <sys/resource.h>

#include <cstring>
#include <string>

#include "bare.h"
#include "utility/Runtime.h"

namespace {

constexpr std::size_t Size = std::size_t{64} << 20U;

long mostMemory() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss * 1024;
}

std::size_t readByRuntime(char** words) {
  std::string command = words[0];
  for (char** word = words + 1; *word != nullptr; ++word) (command += ' ') += *word;
  std::string output;
  int waitStatus = 0;
  return Runtime::getInstance()->execute(command, output, waitStatus) ? output.size() : 0;
}

std::size_t readBare(char** words) {
  std::string buffer;
  buffer.reserve(Size + 1);
  const bare::Command command = bare::start(words);
  std::size_t length = 0;
  ssize_t piece = 0;
  do {
    piece = read(command.output, buffer.data() + length, Size - length);
    if (piece > 0) length += static_cast<std::size_t>(piece);
  } while (piece > 0);
  return bare::finish(command) == 0 ? length : 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4) return 2;
  const long before = mostMemory();
  const double start = bare::nanoseconds();
  const bool byRuntime = std::strcmp(arguments[1], "runtime") == 0;
  if ((byRuntime ? readByRuntime(arguments + 3) : readBare(arguments + 3)) != Size) return 1;
  const double time = bare::nanoseconds() - start;
  std::printf("%.1f\n",
              std::strcmp(arguments[2], "time") == 0 ? time : static_cast<double>(mostMemory() - before));
}
