// Texts of several fields, as the device scripts print them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "utility/StringUtilities.h"

inline std::vector<std::string> splitText(const std::string& text, const char* separator) {
  std::vector<std::string> pieces;
  StringUtilities::getDelimetedList(pieces, text, separator);
  return pieces;
}

// A piece that is not there reads as the empty text.
inline std::string pieceOf(const std::vector<std::string>& pieces, std::size_t index) {
  return index < pieces.size() ? pieces[index] : std::string();
}
