// Identifiers as texts: three groups of eight hexadecimal digits. The digits are taken one by one, because a
// page that lists the trap receivers reads and writes several for each, and snprintf takes most of the time
// then.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/GUID.h"

namespace TarnAbstract {

constexpr std::size_t IdentifierGroupLength = 8;
constexpr std::size_t IdentifierGroups = 3;
constexpr std::size_t IdentifierTextLength = IdentifierGroups * (IdentifierGroupLength + 1) - 1;

// In lower case, with a NUL behind it: text has room for both.
inline void writeIdentifier(const GUID& identifier, char* text) {
  for (std::size_t group = 0; group < IdentifierGroups; ++group) {
    std::uint32_t word = identifier.Word(static_cast<unsigned int>(group));
    for (std::size_t place = IdentifierGroupLength; place-- > 0; word >>= 4U) {
      text[place] = "0123456789abcdef"[word & 0xFU];
    }
    text += IdentifierGroupLength;
    *text++ = group + 1 < IdentifierGroups ? '-' : '\0';
  }
}

// The digits may be of upper case, too. False: the text is none, and identifier is untouched.
inline bool readIdentifier(const char* text, GUID& identifier) {
  if (strnlen(text, IdentifierTextLength + 1) != IdentifierTextLength) return false;
  std::array<std::uint32_t, IdentifierGroups> words = {};
  for (std::size_t place = 0; place < IdentifierTextLength; ++place) {
    const char character = text[place];
    std::uint32_t& word = words[place / (IdentifierGroupLength + 1)];
    if (place % (IdentifierGroupLength + 1) == IdentifierGroupLength) {
      if (character != '-') return false;
    } else if (character >= '0' && character <= '9') {
      word = word << 4U | static_cast<std::uint32_t>(character - '0');
    } else if ((character >= 'a' && character <= 'f') || (character >= 'A' && character <= 'F')) {
      word = word << 4U | ((static_cast<std::uint32_t>(character) & 0x7U) + 9);
    } else {
      return false;
    }
  }
  identifier = GUID(words[0], words[1], words[2]);
  return true;
}

}  // namespace TarnAbstract
