#include "utility/platform_texts.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "libtarn/string_access.h"

using TarnAbstract::GUID;

namespace {

constexpr std::size_t GroupLength = 8;
constexpr std::size_t GroupDistance = GroupLength + 1;
constexpr char GroupSeparator = '-';
constexpr std::size_t IdentifierLength = 3 * GroupLength + 2;

bool parseGroup(const char* text, std::uint32_t& word) {
  const char* const end = text + GroupLength;
  const std::from_chars_result result = std::from_chars(text, end, word, 16);
  return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

const char* tarnStringToCString(const TarnAbstract::String& text) {
  return TarnAbstract::StringAccess::Text(text);
}

GUID cStringToGUID(char* text) {
  if (text == nullptr || strnlen(text, IdentifierLength + 1) != IdentifierLength) return {};
  const char* const second = text + GroupDistance;
  const char* const third = second + GroupDistance;
  if (second[-1] != GroupSeparator || third[-1] != GroupSeparator) return {};
  std::uint32_t words[3];
  if (!parseGroup(text, words[0]) || !parseGroup(second, words[1]) || !parseGroup(third, words[2])) return {};
  return {words[0], words[1], words[2]};
}

const char* guidToCString(const GUID& identifier) {
  static thread_local char text[IdentifierLength + 1];
  std::snprintf(text, sizeof(text), "%08x-%08x-%08x", identifier.Word(0), identifier.Word(1),
                identifier.Word(2));
  return text;
}
