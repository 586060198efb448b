#include <cstring>
#include <string>

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include "libdovan_util/engine.h"
#include "libdovan_util/property_values.h"
#include "utility/page_properties.h"
#include <php.h>
// clang-format on

namespace {

bool isScalar(const zval* value) { return Z_TYPE_P(value) > IS_NULL && Z_TYPE_P(value) <= IS_STRING; }

}  // namespace

zval* findProperty(zval* object, const char* name) {
  if (object == nullptr || Z_TYPE_P(object) != IS_OBJECT) return nullptr;
  zval* property = zend_hash_str_find_ind(Z_OBJPROP_P(object), name, std::strlen(name));
  if (property != nullptr) ZVAL_DEREF(property);
  return property;
}

bool isTrue(zval* value) { return zend_is_true(value) != 0; }

bool carriesText(zval* value) {
  if (!isScalar(value)) return false;
  return Z_TYPE_P(value) == IS_STRING ? Z_STRLEN_P(value) > 0 : isTrue(value);
}

std::string textOf(zval* scalar) {
  zend_string* const characters = zval_get_string(scalar);
  std::string text(ZSTR_VAL(characters), ZSTR_LEN(characters));
  zend_string_release(characters);
  return text;
}

void add_property_string_q(zval* object, const char* name, const char* value, int /*copy*/) {
  add_property_string(object, name, value);
}

void addFlag(zval* object, const char* name, bool flag) { add_property_bool(object, name, flag); }

void addNumber(zval* object, const char* name, int number) { add_property_long(object, name, number); }

void addTexts(zval* object, const char* name, const std::vector<std::string>& texts) {
  zval list;
  array_init(&list);
  for (const std::string& text : texts) add_next_index_string(&list, text.c_str());
  add_property_zval(object, name, &list);
  zval_ptr_dtor(&list);
}

void warnPage(const char* message, unsigned int code, const char* file, int line) {
  php_error_docref(nullptr, E_WARNING, "%s (code 0x%08X, %s:%d)", message, code, file, line);
}
