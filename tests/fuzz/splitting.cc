// Splitting and joining of texts. Input: the length of the delimiter as a digit, the delimiter, the text.
#include "reference.h"
#include "target.h"
#include "utility/StringUtilities.h"

void tryInput(std::string_view input) {
  if (input.empty()) return;
  const std::size_t length =
      std::min<std::size_t>(static_cast<unsigned char>(input[0]) % 4U, input.size() - 1);
  const std::string delimiter(input.substr(1, length));
  const std::string text(input.substr(1 + length));

  reference::Pieces pieces = {"first"};
  StringUtilities::getDelimetedList(pieces, text, delimiter);
  require(pieces.front() == "first", "what the list holds stays");
  pieces.erase(pieces.begin());
  // A delimiter at the end has an empty piece behind it.
  if (faultIsPlanted() && pieces.size() > 2 && pieces.back().empty()) pieces.pop_back();

  require(pieces.empty() == text.empty(), "the empty text alone has no pieces");
  require(pieces == reference::split(text, delimiter), "the pieces are the reference's");
  for (const std::string& piece : pieces) {
    require(length == 0 || piece.find(delimiter) == std::string::npos, "no piece has the delimiter in it");
  }
  require(StringUtilities::listToString(pieces, delimiter) == text, "the pieces joined are the text");
}
