// Properties of a page's objects, by name.
#pragma once

#include "utility/page_value_types.h"

// Adds the string property name with a copy of value; copy is always 1.
void add_property_string_q(zval* object, const char* name, const char* value, int copy);

// The text of the property, or null when there is no such property or it carries no text: null, false,
// the empty text, the numbers 0 and 0.0, arrays and objects carry none. Valid until the next call for
// the same property on the same thread; not the caller's to free.
char* get_string_property(zval* object, char* name);

// Whether the property is true as the page's language sees it; false when there is no such property.
bool get_bool_property(zval* object, char* name);
