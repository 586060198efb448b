// Values on their way between a page and the engine, in the script language's own serialised form.
#pragma once

#include <php.h>

#include <string>

// Null when the text is no serialised value, or holds what cannot travel (references).
zval* unserialized(const std::string& text);

std::string serialized(const zval* value);
