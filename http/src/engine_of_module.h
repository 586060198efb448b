// What the module's record needs of an engine. Each engine has a file of its own: engine_20020429.cc is the
// appliance's, engine_current.cc is for today's.
#pragma once

#include <php.h>

extern zend_function_entry moduleFunctions[];

// A table of one row on the engine's information page.
void printInformation(const char* name, const char* value);
