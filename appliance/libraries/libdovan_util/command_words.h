// Takes a command line apart without a shell.
#pragma once

#include <string>
#include <vector>

// Splits command in place: words receives pointers into it, ended by a null pointer as exec wants them.
// Blanks and tabs part words; between double quotes they belong to the word, and "" is an empty word.
// Every other character is a letter, also the single quote, the backslash, the line end and whatever
// else a shell would act on: a value that is put into a command cannot become an order.
// Returns null, or what is wrong with the command, which is unchanged then.
const char* splitCommand(std::string& command, std::vector<char*>& words);
