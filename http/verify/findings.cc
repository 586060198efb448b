#include "findings.h"

#include <cstdio>

namespace {

bool good = true;

// Control characters of a name or a message that somebody else has chosen are no orders to the terminal.
void say(const char* kind, std::string sentence) {
  for (char& character : sentence) {
    if (static_cast<unsigned char>(character) < ' ' || character == '\177') character = '?';
  }
  std::printf("%s: %s\n", kind, sentence.c_str());
}

std::string formatted(const char* format, unsigned long value) {
  char text[32];
  std::snprintf(text, sizeof(text), format, value);
  return text;
}

}  // namespace

void right(const std::string& sentence) { say("right", sentence); }

void wrong(const std::string& sentence) {
  good = false;
  say("wrong", sentence);
}

void unknown(const std::string& sentence) {
  good = false;
  say("unknown", sentence);
}

void note(const std::string& sentence) { say("note", sentence); }

void someWasWrong() { good = false; }
bool allRight() { return good; }

std::string number(unsigned long value) { return formatted("%lu", value); }
std::string hexadecimal(unsigned long value) { return formatted("0x%lx", value); }
