// What a test wants the platform to answer. Its table is a text file of lines
//
//     KEY ANSWER...
//
// of words with one blank between them, in which every character but letters, digits, "-", "_" and "." is
// written as %XX. The key says what is asked: a command line, "INTERFACE.operation", the name of an interface
// or of a C library function. Of several lines with the same key the last one counts, so that a test can
// change its mind between two calls.
//
// What every test would show, and few ask for, is written only for those that answer with anything to:
// "instances" (each time the proxy or the runner is asked for) and "results of threads".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"

using Answer = std::vector<std::string>;

// Empty when the test has not thought of this question.
std::optional<Answer> answerTo(const std::string& key);

// The word at the position; a missing one is a mistake of the test, which ends here with a sentence.
const std::string& word(const Answer& answer, std::size_t position);

// Decimal, or hexadecimal behind "0x".
unsigned long number(const std::string& word);

// A named code of the platform, or its number.
TarnAbstract::Result::Code resultCode(const std::string& word);
