#include "libdovan_util/command_words.h"

#include <algorithm>

namespace {

bool separates(char character) { return character == ' ' || character == '\t'; }

// Moves the word at source to the front of target, without its quotes and with a NUL behind it. Both
// stand behind it afterwards; target never overtakes source.
void takeWord(const char*& source, const char* end, char*& target) {
  bool quoted = false;
  for (; source != end && (quoted || !separates(*source)); ++source) {
    if (*source == '"') {
      quoted = !quoted;
    } else {
      *target++ = *source;
    }
  }
  if (source != end) ++source;
  *target++ = '\0';
}

}  // namespace

const char* splitCommand(std::string& command, std::vector<char*>& words) {
  if (command.find('\0') != std::string::npos) return "a command line cannot hold a NUL character";
  if (std::count(command.begin(), command.end(), '"') % 2 != 0) return "its last double quote is not closed";

  words.clear();
  char* target = command.data();
  const char* source = target;
  const char* const end = source + command.size();
  for (;;) {
    source = std::find_if_not(source, end, separates);
    if (source == end) break;
    words.push_back(target);
    takeWord(source, end, target);
  }
  if (words.empty()) return "it names no program";
  words.push_back(nullptr);
  return nullptr;
}
