// Properties are read as they are stored and by their plain name: public ones, declared or added. No
// code of the page runs for that; a class that computes a property when it is asked for has none here.
#include "utility/page_properties.h"

#include <map>
#include <string>

#include "libdovan_util/engine.h"

namespace {

// The texts last given out on this thread, by property.
std::string& keptText(const char* name) {
  static thread_local std::map<std::string, std::string> texts;
  return texts[name];
}

}  // namespace

char* get_string_property(zval* object, char* name) {
  zval* const value = findProperty(object, name);
  if (value == nullptr || !carriesText(value)) return nullptr;
  std::string& text = keptText(name);
  text = textOf(value);
  return text.data();
}

bool get_bool_property(zval* object, char* name) {
  zval* const value = findProperty(object, name);
  return value != nullptr && isTrue(value);
}
