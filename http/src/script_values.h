// Arguments in, values out: the module's only knowledge of how an engine passes them. What a page sees
// is the same on every engine: a wrong argument is a warning in the engine's own words, and the
// function returns null.
#pragma once

// The engine defines names of the standard library as macros, so it comes last.
// clang-format off
#include <string>
#include <php.h>
// clang-format on

#define APPLIANCE_ENGINE_API 20020429

// What the engine's parser writes for each letter of a format, and how the engine calls a handler.
#if ZEND_MODULE_API_NO == APPLIANCE_ENGINE_API
using ScriptFlag = unsigned char;  // "b"
using ScriptInteger = long;        // "l"
using ScriptTextLength = int;      // "s", behind the characters
#define HANDLER(name)                                                                             \
  void zif_##name([[maybe_unused]] int ht, [[maybe_unused]] zval* return_value, zval* /*object*/, \
                  int /*return_value_used*/)
#else
using ScriptFlag = bool;
using ScriptInteger = zend_long;
using ScriptTextLength = size_t;
#define HANDLER(name)                                                             \
  void ZEND_FASTCALL zif_##name([[maybe_unused]] zend_execute_data* execute_data, \
                                [[maybe_unused]] zval* return_value)
#endif

struct ScriptText {  // "s"
  char* characters = nullptr;
  ScriptTextLength length = 0;
};

// Whether the engine's parser took the arguments. When it did not, the page has been warned.
bool argumentsAccepted(int parserResult);

// format: "o" an object (zval*), "s" a text (characters, then length), "l" a ScriptInteger, "b" a
// ScriptFlag. False: the handler returns at once and uses none of its variables.
template <class... Destinations>
bool parseArguments(int count, const char* format, Destinations*... destinations) {
  return argumentsAccepted(zend_parse_parameters(count, const_cast<char*>(format), destinations...));
}

// A page's number where an int will do; one that is too large becomes the largest, so that no number
// turns into another that has a meaning.
int asInt(ScriptInteger number);

// A property's text, empty when there is none; and whether it carries one at all, whatever it says.
std::string textProperty(zval* object, const char* name);
bool hasTextProperty(zval* object, const char* name);
bool flagProperty(zval* object, const char* name);

// The handler's result; without one of these it is null. Texts end at their first NUL.
void returnBoolean(zval* return_value, bool flag);
void returnString(zval* return_value, const std::string& text);

// The result becomes an object or an array without content, to be filled in the order of the calls.
void makeObject(zval* value);
void makeArray(zval* value);
void addBoolean(zval* object, const char* name, bool flag);
void addInteger(zval* object, const char* name, ScriptInteger number);
void addString(zval* object, const char* name, const std::string& text);
void appendString(zval* array, const std::string& text);

// A new object without content at the end of the array, to be filled before the next one.
zval* appendObject(zval* array);
