// Properties that are no texts, for objects that this library fills.
#pragma once

#include <string>
#include <vector>

#include "utility/page_value_types.h"

void addFlag(zval* object, const char* name, bool flag);
void addNumber(zval* object, const char* name, int number);
// An array with consecutive keys from 0.
void addTexts(zval* object, const char* name, const std::vector<std::string>& texts);
