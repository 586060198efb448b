// Identifiers as texts: three groups of eight hexadecimal digits.
#include "reference.h"
#include "target.h"
#include "utility/platform_texts.h"

namespace {

bool isIdentifier(const std::string& text) {
  const reference::Pieces groups = reference::split(text, '-');
  return groups.size() == 3 && std::all_of(groups.begin(), groups.end(), [](const std::string& group) {
           return group.size() == 8 && group.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
         });
}

}  // namespace

void tryInput(std::string_view input) {
  const std::string text = reference::untilNul(std::string(input));
  // On the heap and not a byte longer than its NUL.
  std::vector<char> characters(text.begin(), text.end());
  characters.push_back('\0');
  const TarnAbstract::GUID identifier = cStringToGUID(characters.data());
  require(std::equal(text.begin(), text.end(), characters.begin()), "the text stays as it is");

  std::string written = guidToCString(identifier);
  if (faultIsPlanted() && !(identifier == TarnAbstract::GUID()) && written[9] == '0') written[9] = '1';
  std::string expected = isIdentifier(text) ? text : "00000000-00000000-00000000";
  std::transform(expected.begin(), expected.end(), expected.begin(),
                 [](unsigned char c) { return std::tolower(c); });
  require(written == expected, "it is written in lower case as it was read, and as zeros what is none");
  require(cStringToGUID(written.data()) == identifier, "what was written reads as the same");
}
