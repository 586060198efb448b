// long_output runtime|bare|growing time|memory MIB COMMAND...: reads the output of the command, so many MiB,
// by Runtime, into a buffer that was reserved for it, or into a text that grows. Prints the nanoseconds, or
// by how many bytes the process grew at most.
#include <cstring>
#include <string>

#include "bare.h"
#include "utility/Runtime.h"

namespace {

// Of this program: what getrusage() says is also that of the one that was here before it.
long mostMemory() {
  std::FILE* const status = std::fopen("/proc/self/status", "re");
  if (status == nullptr) bare::stop("/proc/self/status");
  char line[256];
  long kibibytes = 0;
  while (std::fgets(line, sizeof(line), status) != nullptr) {
    if (std::sscanf(line, "VmHWM: %ld", &kibibytes) == 1) break;
  }
  std::fclose(status);
  return kibibytes * 1024;
}

std::size_t readByRuntime(char** words) {
  std::string command = words[0];
  for (char** word = words + 1; *word != nullptr; ++word) (command += ' ') += *word;
  std::string output;
  int waitStatus = 0;
  return Runtime::getInstance()->execute(command, output, waitStatus) ? output.size() : 0;
}

std::size_t readBare(char** words, std::size_t size) {
  std::string buffer;
  buffer.reserve(size + 1);
  const bare::Command command = bare::start(words);
  std::size_t length = 0;
  ssize_t piece = 0;
  do {
    piece = read(command.output, buffer.data() + length, size - length);
    if (piece > 0) length += static_cast<std::size_t>(piece);
  } while (piece > 0);
  return bare::finish(command) == 0 ? length : 0;
}

std::size_t readGrowing(char** words) {
  std::string text;
  const bare::Command command = bare::start(words);
  char piece[16384];
  ssize_t length = 0;
  do {
    length = read(command.output, piece, sizeof(piece));
    if (length > 0) text.append(piece, static_cast<std::size_t>(length));
  } while (length > 0);
  return bare::finish(command) == 0 ? text.size() : 0;
}

std::size_t readBy(const std::string& way, char** words, std::size_t size) {
  if (way == "runtime") return readByRuntime(words);
  return way == "growing" ? readGrowing(words) : readBare(words, size);
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 5) return 2;
  const auto size = static_cast<std::size_t>(std::atoi(arguments[3])) << 20U;
  const long before = mostMemory();
  const double start = bare::nanoseconds();
  if (readBy(arguments[1], arguments + 4, size) != size) return 1;
  const double time = bare::nanoseconds() - start;
  std::printf("%.1f\n",
              std::strcmp(arguments[2], "time") == 0 ? time : static_cast<double>(mostMemory() - before));
}
