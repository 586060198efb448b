#include "script_values.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "utility/script_properties.h"

#if ZEND_MODULE_API_NO != APPLIANCE_ENGINE_API
#include <zend_exceptions.h>
#endif

namespace {

constexpr int ParserFailure = -1;

// The appliance's engine counts the NUL behind a property's name.
ScriptTextLength nameLength(const char* name) {
  const ScriptTextLength length = strlen(name);
  return ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API ? length + 1 : length;
}

#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API

void warnOfRefusedArguments() {}  // the parser has done it

#else

// A refusal names the function it is about. An exception out of a page's own code, which ran because an
// argument had to be converted, does not.
bool isRefusal(const zend_object* exception, const zend_string* message) {
  if (exception->ce != zend_ce_type_error && exception->ce != zend_ce_argument_count_error) return false;
  const char* const function = get_active_function_name();
  return strncmp(ZSTR_VAL(message), function, strlen(function)) == 0;
}

void warnOfRefusedArguments() {
  zend_object* const exception = EG(exception);
  if (exception == nullptr) return;
  zval unused;
  zval* const property =
      zend_read_property(zend_ce_error, exception, ZEND_STRL("message"), /*silent=*/true, &unused);
  zend_string* const message = zval_get_string(property);
  if (isRefusal(exception, message)) {
    zend_clear_exception();
    zend_error(E_WARNING, "%s", ZSTR_VAL(message));
  }
  zend_string_release(message);
}

#endif

}  // namespace

bool argumentsAccepted(int parserResult) {
  if (parserResult != ParserFailure) return true;
  warnOfRefusedArguments();
  return false;
}

int asInt(ScriptInteger number) {
  using Range = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<ScriptInteger>(number, Range::min(), Range::max()));
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

void returnBoolean(zval* return_value, bool flag) { RETVAL_BOOL(flag); }

void returnString(zval* return_value, const std::string& text) {
#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API
  const int length = static_cast<int>(strlen(text.c_str()));
  Z_STRLEN_P(return_value) = length;
  Z_STRVAL_P(return_value) = estrndup(text.c_str(), length);
  Z_TYPE_P(return_value) = IS_STRING;
#else
  RETVAL_STRING(text.c_str());
#endif
}

void makeObject(zval* value) { object_init(value); }

void makeArray(zval* value) { array_init(value); }

void addBoolean(zval* object, const char* name, bool flag) {
  add_property_bool_ex(object, const_cast<char*>(name), nameLength(name), flag);
}

void addInteger(zval* object, const char* name, ScriptInteger number) {
  add_property_long_ex(object, const_cast<char*>(name), nameLength(name), number);
}

void addString(zval* object, const char* name, const std::string& text) {
  add_property_string_q(object, name, text.c_str(), /*copy=*/1);
}

void appendString(zval* array, const std::string& text) {
#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API
  add_next_index_string(array, const_cast<char*>(text.c_str()), /*copy=*/1);
#else
  add_next_index_string(array, text.c_str());
#endif
}

zval* appendObject(zval* array) {
#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API
  auto* const object = static_cast<zval*>(emalloc(sizeof(zval)));
  INIT_PZVAL(object);
  object_init(object);
  add_next_index_zval(array, object);
  return object;
#else
  zval object;
  object_init(&object);
  return zend_hash_next_index_insert(Z_ARRVAL_P(array), &object);
#endif
}
