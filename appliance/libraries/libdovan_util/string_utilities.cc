#include "utility/StringUtilities.h"

// Passed by value: programs that are built already call it so.
// NOLINTBEGIN(performance-unnecessary-value-param)

void StringUtilities::getDelimetedList(std::vector<std::string>& list, std::string text,
                                       std::string delimiter) {
  if (text.empty()) return;
  std::size_t begin = 0;
  // An empty delimiter occurs nowhere.
  std::size_t end = delimiter.empty() ? std::string::npos : text.find(delimiter);
  while (end != std::string::npos) {
    list.push_back(text.substr(begin, end - begin));
    begin = end + delimiter.size();
    end = text.find(delimiter, begin);
  }
  list.push_back(text.substr(begin));
}

std::string StringUtilities::listToString(std::vector<std::string> list, std::string delimiter) {
  std::string text;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) text += delimiter;
    text += list[i];
  }
  return text;
}

// NOLINTEND(performance-unnecessary-value-param)
