#include "transcript.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "libdovan_util/command_words.h"
#include "named_codes.h"

namespace {

std::string shownWord(const std::string& word) {
  const bool ambiguous = word.empty() || word.find_first_of(" \t\n[]") != std::string::npos;
  return ambiguous ? '[' + shown(word) + ']' : shown(word);
}

}  // namespace

std::string scriptedPlatformFile(const std::string& name) {
  const char* const folder = std::getenv("SCRIPTED_PLATFORM");
  return std::string(folder == nullptr ? "." : folder) + '/' + name;
}

void record(const std::string& line) {
  const std::string whole = line + '\n';
  // Nowhere to complain when the transcript itself cannot be written: the comparison will fail.
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, whole.data(), whole.size());
}

std::string shown(const std::string& text) {
  std::string visible;
  for (const char c : text) {
    char escape[sizeof("\\xHH")];
    if (c == '\n') {
      visible += "\\n";
    } else if (c < ' ' || c > '~') {
      static_cast<void>(std::snprintf(escape, sizeof(escape), "\\x%02X", static_cast<unsigned char>(c)));
      visible += escape;
    } else {
      visible += c;
    }
  }
  return visible;
}

std::string shownCommand(const std::string& command) {
  std::string characters = command;
  std::vector<char*> words;
  const char* const fault = splitCommand(characters, words);
  if (fault != nullptr) return '[' + shown(command) + "] (" + fault + ')';
  std::string line;
  for (const char* const word : words) {
    if (word == nullptr) break;
    if (!line.empty()) line += ' ';
    line += shownWord(word);
  }
  return line;
}

std::string shownCode(TarnAbstract::Result::Code code) {
  for (const NamedCode& named : namedCodes()) {
    if (code == named.code) return named.name;
  }
  char number[sizeof("0xHHHHHHHH")];
  static_cast<void>(std::snprintf(number, sizeof(number), "0x%08X", code));
  return number;
}
