// What is the same on every engine.
#include "page_values.h"

#include <algorithm>
#include <limits>

#include "utility/page_properties.h"

int asInt(long number) {
  using Range = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<long>(number, Range::min(), Range::max()));
}

std::string textProperty(zval* object, const char* name) {
  const char* const text = get_string_property(object, const_cast<char*>(name));
  return text == nullptr ? std::string() : text;
}

bool hasTextProperty(zval* object, const char* name) {
  return get_string_property(object, const_cast<char*>(name)) != nullptr;
}

bool flagProperty(zval* object, const char* name) {
  return get_bool_property(object, const_cast<char*>(name));
}

void addString(zval* object, const char* name, const std::string& text) {
  add_property_string_q(object, name, text.c_str(), /*copy=*/1);
}
