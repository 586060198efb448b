// Arguments in, values out, as a handler sees them. How an engine passes them is known only to the file of
// that engine (engine_20020429.cc or engine_current.cc). What a page sees is the same on every engine: a
// wrong argument is a warning in the engine's own words, and the function returns null.
#pragma once

#include <cstddef>
#include <string>

#include "utility/page_value_types.h"

// A function that a page can call. The result is null until the function gives it a value.
#define HANDLER(name) void name([[maybe_unused]] int argumentCount, [[maybe_unused]] zval* result)

struct PageText {
  char* characters = nullptr;
  // The engine writes it, one as an int, another as a size_t. Texts end at their first NUL, so nobody reads
  // it.
  std::size_t unreadLength = 0;
};

// Where the engine's parser puts what it has found, in the order of the format's letters.
class ArgumentPlaces {
 public:
  // "olss" has the most: a text takes two.
  static constexpr std::size_t Most = 6;

  void add(zval** object) { addPlace(object); }  // "o"
  void add(long* number) { addPlace(number); }   // "l"
  void add(bool* flag) { addPlace(flag); }       // "b"
  void add(PageText* text) {                     // "s"
    addPlace(&text->characters);
    addPlace(&text->unreadLength);
  }
  void* operator[](std::size_t index) const { return places_[index]; }

 private:
  void addPlace(void* place) { places_[count_++] = place; }

  void* places_[Most] = {};
  std::size_t count_ = 0;
};

// False after the page has been warned.
bool parseInto(const ArgumentPlaces& places, int argumentCount, const char* format);

// format: a letter for each destination, see ArgumentPlaces. False: the handler returns at once and uses none
// of its variables.
template <class... Destinations>
bool parseArguments(int argumentCount, const char* format, Destinations*... destinations) {
  ArgumentPlaces places;
  (places.add(destinations), ...);
  return parseInto(places, argumentCount, format);
}

// A page's number where an int will do; one that is too large becomes the largest, so that no number
// turns into another that has a meaning.
int asInt(long number);

// A property's text, empty when there is none; and whether it carries one at all, whatever it says.
std::string textProperty(zval* object, const char* name);
bool hasTextProperty(zval* object, const char* name);
bool flagProperty(zval* object, const char* name);

// Gives the result its value. Texts end at their first NUL.
void returnBoolean(zval* result, bool flag);
void returnString(zval* result, const std::string& text);

// The value becomes an object or an array without content, to be filled in the order of the calls.
void makeObject(zval* value);
void makeArray(zval* value);
void addBoolean(zval* object, const char* name, bool flag);
void addInteger(zval* object, const char* name, long number);
void addString(zval* object, const char* name, const std::string& text);
void appendString(zval* array, const std::string& text);

// A new object without content at the end of the array, to be filled before the next one.
zval* appendObject(zval* array);
