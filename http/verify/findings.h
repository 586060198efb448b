// What there is to say: one line for each finding.
#pragma once

#include <string>

void right(const std::string& sentence);
void wrong(const std::string& sentence);
// What could not be told, and so may be wrong.
void unknown(const std::string& sentence);
// What is neither.
void note(const std::string& sentence);

// What another process has said here already.
void someWasWrong();

// Whether nothing was wrong or unknown so far.
bool allRight();

std::string number(unsigned long value);
std::string hexadecimal(unsigned long value);
