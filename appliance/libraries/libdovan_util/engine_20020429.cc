#include <cstring>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include "libdovan_util/engine.h"
#include "libdovan_util/property_values.h"
#include "utility/page_properties.h"
#include <php.h>
// clang-format on

namespace {

// The engine counts the NUL behind a name.
unsigned int sizeOf(const char* name) { return static_cast<unsigned int>(std::strlen(name) + 1); }

bool isScalar(const zval* value) {
  switch (Z_TYPE_P(value)) {
    case IS_LONG:
    case IS_DOUBLE:
    case IS_STRING:
    case IS_BOOL:
      return true;
    default:
      return false;
  }
}

// 1.5, 1.0E+25, 1.0E-7
std::string textOf(double number) {
  constexpr int Precision = 14;  // the engine's default
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << std::setprecision(Precision) << std::uppercase << number;
  std::string text = stream.str();
  const std::size_t exponent = text.find('E');
  if (exponent == std::string::npos) return text;  // also INF and NAN: neither has an E
  text.erase(exponent + 2, text.find_first_not_of('0', exponent + 2) - (exponent + 2));
  if (text.find('.') == std::string::npos) text.insert(exponent, ".0");
  return text;
}

}  // namespace

zval* findProperty(zval* object, const char* name) {
  if (object == nullptr || Z_TYPE_P(object) != IS_OBJECT) return nullptr;
  void* place = nullptr;
  if (zend_hash_find(Z_OBJPROP_P(object), const_cast<char*>(name), sizeOf(name), &place) != SUCCESS)
    return nullptr;
  return *static_cast<zval**>(place);
}

// The interface has no call that counts elements: an array or object is true whatever it holds.
bool isTrue(zval* value) {
  switch (Z_TYPE_P(value)) {
    case IS_NULL:
      return false;
    case IS_LONG:
    case IS_BOOL:
      return Z_LVAL_P(value) != 0;
    case IS_DOUBLE:
      return Z_DVAL_P(value) != 0;
    case IS_STRING:
      return Z_STRLEN_P(value) > 1 || (Z_STRLEN_P(value) == 1 && Z_STRVAL_P(value)[0] != '0');
    default:
      return true;
  }
}

bool carriesText(zval* value) {
  if (!isScalar(value)) return false;
  return Z_TYPE_P(value) == IS_STRING ? Z_STRLEN_P(value) > 0 : isTrue(value);
}

std::string textOf(zval* scalar) {
  switch (Z_TYPE_P(scalar)) {
    case IS_STRING:
      return {Z_STRVAL_P(scalar), static_cast<std::size_t>(Z_STRLEN_P(scalar))};
    case IS_DOUBLE:
      return textOf(Z_DVAL_P(scalar));
    default:
      return std::to_string(Z_LVAL_P(scalar));
  }
}

void add_property_string_q(zval* object, const char* name, const char* value, int copy) {
  add_property_string_ex(object, const_cast<char*>(name), sizeOf(name), const_cast<char*>(value), copy);
}

void addFlag(zval* object, const char* name, bool flag) {
  add_property_bool_ex(object, const_cast<char*>(name), sizeOf(name), flag ? 1 : 0);
}

void addNumber(zval* object, const char* name, int number) {
  add_property_long_ex(object, const_cast<char*>(name), sizeOf(name), number);
}

void addTexts(zval* object, const char* name, const std::vector<std::string>& texts) {
  // The interface has no call that adds an array: a number takes the place first.
  addNumber(object, name, 0);
  zval* const list = findProperty(object, const_cast<char*>(name));
  array_init(list);
  for (const std::string& text : texts) {
    add_next_index_string(list, const_cast<char*>(text.c_str()), /*duplicate=*/1);
  }
}
