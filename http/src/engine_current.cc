// Today's engines: how they call a handler, and how they pass values. engine_20020429.cc is the same for the
// appliance's own.
#include <cstring>

#include "handlers.h"
#include "page_values.h"

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include "engine_of_module.h"
#include <ext/standard/info.h>
#include <zend_exceptions.h>
#include "network_arginfo.h"
// clang-format on

// The engine calls its own kind of function, and that calls the handler.
#define CALL_HANDLER(name) \
  PHP_FUNCTION(name) { name(static_cast<int>(ZEND_NUM_ARGS()), return_value); }
EACH_HANDLER(CALL_HANDLER)
#undef CALL_HANDLER

#define TABLE_ENTRY(name) PHP_FE(name, arginfo_##name)
zend_function_entry moduleFunctions[] = {EACH_HANDLER(TABLE_ENTRY){}};
#undef TABLE_ENTRY

void printInformation(const char* name, const char* value) {
  php_info_print_table_start();
  php_info_print_table_header(2, name, value);
  php_info_print_table_end();
}

namespace {

constexpr int ParserFailure = -1;

// A refusal names the function it is about. An exception out of a page's own code, which ran because an
// argument had to be converted, does not.
bool isRefusal(const zend_object* exception, const zend_string* message) {
  if (exception->ce != zend_ce_type_error && exception->ce != zend_ce_argument_count_error) return false;
  const char* const function = get_active_function_name();
  return strncmp(ZSTR_VAL(message), function, strlen(function)) == 0;
}

// The engine throws where the appliance's warns: a page sees the warning on both.
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

}  // namespace

static_assert(sizeof(zend_long) == sizeof(long), "the parser writes what a handler calls a long");

// The parser takes no more places than the format has letters for.
bool parseInto(const ArgumentPlaces& places, int argumentCount, const char* format) {
  if (zend_parse_parameters(argumentCount, format, places[0], places[1], places[2], places[3], places[4],
                            places[5]) != ParserFailure) {
    return true;
  }
  warnOfRefusedArguments();
  return false;
}

void returnBoolean(zval* result, bool flag) { ZVAL_BOOL(result, flag); }

void returnString(zval* result, const std::string& text) { ZVAL_STRING(result, text.c_str()); }

void makeObject(zval* value) { object_init(value); }

void makeArray(zval* value) { array_init(value); }

void addBoolean(zval* object, const char* name, bool flag) { add_property_bool(object, name, flag); }

void addInteger(zval* object, const char* name, long number) { add_property_long(object, name, number); }

void appendString(zval* array, const std::string& text) { add_next_index_string(array, text.c_str()); }

zval* appendObject(zval* array) {
  zval object;
  object_init(&object);
  return zend_hash_next_index_insert(Z_ARRVAL_P(array), &object);
}
