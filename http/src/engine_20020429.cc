// The appliance's own engine, with the module API number 20020429: how it calls a handler, and how it passes
// values. engine_current.cc is the same for today's engines.
#include <cstring>

#include "handlers.h"
#include "page_values.h"

// The engine's headers declare these for C alone. Without a word about it C++ would look for other names in
// the interpreter, which has none such.
extern "C" {
void php_info_print_table_start();
void php_info_print_table_header(int num_cols, ...);
void php_info_print_table_end();
}

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include "engine_of_module.h"
#include <ext/standard/info.h>
// clang-format on

// The engine calls its own kind of function, and that calls the handler.
#define CALL_HANDLER(name) \
  PHP_FUNCTION(name) { name(static_cast<int>(ZEND_NUM_ARGS()), return_value); }
EACH_HANDLER(CALL_HANDLER)
#undef CALL_HANDLER

// No argument is passed by reference. The engine's own macro for an entry is for C: the name is no constant
// there.
#define TABLE_ENTRY(name) {const_cast<char*>(#name), zif_##name, nullptr},
zend_function_entry moduleFunctions[] = {EACH_HANDLER(TABLE_ENTRY){}};
#undef TABLE_ENTRY

void printInformation(const char* name, const char* value) {
  php_info_print_table_start();
  php_info_print_table_header(2, name, value);
  php_info_print_table_end();
}

namespace {

constexpr int ParserFailure = -1;

// The engine counts the NUL behind a property's name.
unsigned int sizeOf(const char* name) { return static_cast<unsigned int>(strlen(name) + 1); }

}  // namespace

// The parser writes a truth value as one byte, 0 or 1.
static_assert(sizeof(bool) == 1);

// The parser takes no more places than the format has letters for, and warns the page itself.
bool parseInto(const ArgumentPlaces& places, int argumentCount, const char* format) {
  return zend_parse_parameters(argumentCount, const_cast<char*>(format), places[0], places[1], places[2],
                               places[3], places[4], places[5]) != ParserFailure;
}

void returnBoolean(zval* result, bool flag) {
  Z_LVAL_P(result) = flag ? 1 : 0;
  Z_TYPE_P(result) = IS_BOOL;
}

void returnString(zval* result, const std::string& text) {
  const int length = static_cast<int>(strlen(text.c_str()));
  Z_STRLEN_P(result) = length;
  Z_STRVAL_P(result) = estrndup(text.c_str(), length);
  Z_TYPE_P(result) = IS_STRING;
}

void makeObject(zval* value) { object_init(value); }

void makeArray(zval* value) { array_init(value); }

void addBoolean(zval* object, const char* name, bool flag) {
  add_property_bool_ex(object, const_cast<char*>(name), sizeOf(name), flag ? 1 : 0);
}

void addInteger(zval* object, const char* name, long number) {
  add_property_long_ex(object, const_cast<char*>(name), sizeOf(name), number);
}

void appendString(zval* array, const std::string& text) {
  add_next_index_string(array, const_cast<char*>(text.c_str()), /*copy=*/1);
}

zval* appendObject(zval* array) {
  auto* const object = static_cast<zval*>(emalloc(sizeof(zval)));
  INIT_PZVAL(object);
  object_init(object);
  add_next_index_zval(array, object);
  return object;
}
