// What the fuzzing targets have in common. A target is a file NAME.cc that tries one input: it hands the
// input to the product and requires what has to hold of the outcome.
#pragma once

#include <string>
#include <string_view>

// The target's. The characters end where the input ends: reading on is a fault that the sanitizer sees.
void tryInput(std::string_view input);

// Ends the process with the sentence when what has to hold does not; the fuzzer keeps the input.
void require(bool holds, const char* sentence);

// Whether the target is to be proved: then it spoils one outcome of the product, and has to notice that
// (environment variable FUZZ_PLANTED_FAULT). A target whose requirements are empty words does not.
bool faultIsPlanted();

// Takes the line off the front of rest, without its end.
std::string_view takeLine(std::string_view& rest);
