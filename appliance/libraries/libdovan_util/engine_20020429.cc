#include <cstring>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

// The engine's headers declare this for C alone. Without a word about it C++ would look for another name in
// the interpreter, which has none such.
extern "C" void php_error_docref0(const char* docref, int type, const char* format, ...);

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

// 1.5, 1E+25, 1E-05
std::string textOf(double number) {
  constexpr int Precision = 14;  // the engine's default
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << std::setprecision(Precision) << std::uppercase << number;
  return stream.str();
}

}  // namespace

zval* findProperty(zval* object, const char* name) {
  if (object == nullptr || Z_TYPE_P(object) != IS_OBJECT) return nullptr;
  void* place = nullptr;
  if (zend_hash_find(Z_OBJPROP_P(object), const_cast<char*>(name), sizeOf(name), &place) != SUCCESS)
    return nullptr;
  return *static_cast<zval**>(place);
}

bool isTrue(zval* value) { return zend_is_true(value) != 0; }

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

void warnPage(const char* message, unsigned int code, const char* file, int line) {
  php_error_docref(nullptr, E_WARNING, "%s (code 0x%08X, %s:%d)", message, code, file, line);
}
