// Splitting and joining of texts.
#pragma once

#include <string>
#include <vector>

class StringUtilities {
 public:
  // Appends to list the pieces of text between occurrences of delimiter, in order. An empty text has
  // no pieces; neighbouring delimiters, and one at the start or the end, give an empty piece each.
  static void getDelimetedList(std::vector<std::string>& list, std::string text, std::string delimiter);

  // The pieces with delimiter between neighbours.
  static std::string listToString(std::vector<std::string> list, std::string delimiter);
};
