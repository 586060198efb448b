// A part of a text that somebody else keeps. This folder has C headers only: the program that the device
// scripts start is linked with a C library that starts fast and has no C++ library beside it.
#pragma once

#include <stddef.h>  // NOLINT(modernize-deprecated-headers): see above

namespace AddressRules {

struct Text {
  const char* start;
  size_t length;
};

Text WholeText(const char* text);

// Splits at the first occurrence of the character, which belongs to neither part. False, with everything
// in before, when there is none.
bool SplitAt(char character, Text text, Text& before, Text& after);

constexpr size_t LongestShown = 100;
struct Shown {
  char text[LongestShown + sizeof("...")];
};

// A value of unknown origin as it may stand in a sentence: short, on one line, in whole characters.
Shown Show(Text value);

}  // namespace AddressRules
