// What the library needs of an engine. Each engine has a file of its own: engine_20020429.cc is the
// appliance's, engine_current.cc is for today's.
#pragma once

#include <string>

#include "utility/page_value_types.h"

// The property as it is stored, or null when the value is no object or has no such property.
zval* findProperty(zval* object, const char* name);

// See get_string_property and get_bool_property.
bool carriesText(zval* value);
std::string textOf(zval* scalar);
bool isTrue(zval* value);

// A warning of the function that runs: what has failed, with its code and where it was reported.
void warnPage(const char* message, unsigned int code, const char* file, int line);
