// The transcript of a test: what its calls did, in order, one line each. It is the process's standard error,
// which is at the same time the trace log.
#pragma once

#include <string>

#include "platform/Result.h"

// The path of a file of the test, in the folder that the environment variable SCRIPTED_PLATFORM names.
std::string scriptedPlatformFile(const std::string& name);

// Adds one line, with one write.
void record(const std::string& line);

// A text as lines of the transcript show it: what is no printable ASCII character as \n or \xHH.
std::string shown(const std::string& text);

// A command line as the words that it is split into; around words that are empty or hold a blank is a pair of
// brackets.
std::string shownCommand(const std::string& command);

// The name of a code, or its number.
std::string shownCode(TarnAbstract::Result::Code code);
