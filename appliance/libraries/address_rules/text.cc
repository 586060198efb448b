#include "address_rules/text.h"

#include <string.h>

namespace AddressRules {
namespace {

bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }

bool ContinuesACharacter(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

// How many bytes a character has that begins so; 0 for a byte that begins none.
size_t LengthOfCharacter(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// Of some first bytes not every second byte follows: the character would have a shorter form, be half of a
// pair, or lie beyond the last one.
bool CanFollow(unsigned char first, unsigned char second) {
  switch (first) {
    case 0xE0:
      return second >= 0xA0;
    case 0xED:
      return second < 0xA0;
    case 0xF0:
      return second >= 0x90;
    case 0xF4:
      return second < 0x90;
    default:
      return true;
  }
}

// How many bytes from start belong together: a character, when whole is set, or what is left of one.
size_t BytesTogether(const unsigned char* start, size_t available, bool& whole) {
  const size_t wanted = LengthOfCharacter(*start);
  whole = wanted == 1;
  size_t length = 1;
  while (length < wanted && length < available && ContinuesACharacter(start[length]) &&
         (length > 1 || CanFollow(start[0], start[1]))) {
    ++length;
    whole = length == wanted;
  }
  return length;
}

}  // namespace

Text WholeText(const char* text) { return {text, strlen(text)}; }

bool SplitAt(char character, Text text, Text& before, Text& after) {
  const auto* const found = static_cast<const char*>(memchr(text.start, character, text.length));
  before = text;
  if (found == nullptr) return false;
  before.length = static_cast<size_t>(found - text.start);
  after = {found + 1, text.length - before.length - 1};
  return true;
}

Shown Show(Text value) {
  Shown shown = {};
  const size_t length = value.length < LongestShown ? value.length : LongestShown;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(value.start);
  char* end = shown.text;
  for (size_t position = 0; position < length;) {
    bool whole = false;
    const size_t together = BytesTogether(bytes + position, length - position, whole);
    if (IsControl(bytes[position])) {
      *end++ = '?';
    } else if (whole) {
      memcpy(end, value.start + position, together);
      end += together;
    }
    position += together;
  }
  if (value.length > LongestShown) memcpy(end, "...", sizeof("..."));
  return shown;
}

}  // namespace AddressRules
