// Properties are read as they are stored and by their plain name: public ones, declared or added. No
// code of the page runs for that; a class that computes a property when it is asked for has none here.
#include "utility/script_properties.h"

#include <php.h>

#include <cstring>
#include <map>
#include <string>

#include "libdovan_util/property_values.h"

#if ZEND_MODULE_API_NO == 20020429
#include <iomanip>
#include <locale>
#include <sstream>
#endif

namespace {

#if ZEND_MODULE_API_NO == 20020429

// The engine counts the NUL behind a name.
unsigned int sizeOf(const char* name) { return static_cast<unsigned int>(std::strlen(name) + 1); }

void addProperty(zval* object, const char* name, const char* value, int copy) {
  add_property_string_ex(object, const_cast<char*>(name), sizeOf(name), const_cast<char*>(value), copy);
}

zval* findProperty(zval* object, char* name) {
  void* place = nullptr;
  if (zend_hash_find(Z_OBJPROP_P(object), name, sizeOf(name), &place) != SUCCESS) return nullptr;
  return *static_cast<zval**>(place);
}

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

// The interface has no call that counts elements: an array or object is true whatever it holds.
bool isTrue(const zval* value) {
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

std::string textOf(const zval* scalar) {
  switch (Z_TYPE_P(scalar)) {
    case IS_STRING:
      return {Z_STRVAL_P(scalar), static_cast<std::size_t>(Z_STRLEN_P(scalar))};
    case IS_DOUBLE:
      return textOf(Z_DVAL_P(scalar));
    default:
      return std::to_string(Z_LVAL_P(scalar));
  }
}

#else

void addProperty(zval* object, const char* name, const char* value, int /*copy*/) {
  add_property_string(object, name, value);
}

zval* findProperty(zval* object, const char* name) {
  zval* property = zend_hash_str_find_ind(Z_OBJPROP_P(object), name, std::strlen(name));
  if (property != nullptr) ZVAL_DEREF(property);
  return property;
}

bool isScalar(const zval* value) { return Z_TYPE_P(value) > IS_NULL && Z_TYPE_P(value) <= IS_STRING; }

bool isTrue(zval* value) { return zend_is_true(value) != 0; }

std::string textOf(zval* scalar) {
  zend_string* const characters = zval_get_string(scalar);
  std::string text(ZSTR_VAL(characters), ZSTR_LEN(characters));
  zend_string_release(characters);
  return text;
}

#endif

zval* propertyOf(zval* object, char* name) {
  if (object == nullptr || Z_TYPE_P(object) != IS_OBJECT) return nullptr;
  return findProperty(object, name);
}

bool carriesText(zval* value) {
  if (!isScalar(value)) return false;
  return Z_TYPE_P(value) == IS_STRING ? Z_STRLEN_P(value) > 0 : isTrue(value);
}

// The texts last given out on this thread, by property.
std::string& keptText(const char* name) {
  static thread_local std::map<std::string, std::string> texts;
  return texts[name];
}

}  // namespace

void add_property_string_q(zval* object, const char* name, const char* value, int copy) {
  addProperty(object, name, value, copy);
}

char* get_string_property(zval* object, char* name) {
  zval* const value = propertyOf(object, name);
  if (value == nullptr || !carriesText(value)) return nullptr;
  std::string& text = keptText(name);
  text = textOf(value);
  return text.data();
}

bool get_bool_property(zval* object, char* name) {
  zval* const value = propertyOf(object, name);
  return value != nullptr && isTrue(value);
}

#if ZEND_MODULE_API_NO == 20020429

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

#else

void addFlag(zval* object, const char* name, bool flag) { add_property_bool(object, name, flag); }

void addNumber(zval* object, const char* name, int number) { add_property_long(object, name, number); }

void addTexts(zval* object, const char* name, const std::vector<std::string>& texts) {
  zval list;
  array_init(&list);
  for (const std::string& text : texts) add_next_index_string(&list, text.c_str());
  add_property_zval(object, name, &list);
  zval_ptr_dtor(&list);
}

#endif
