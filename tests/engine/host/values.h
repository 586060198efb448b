// Values of the engine, and the memory that they live in. Only the engine's own thread may touch them.
#pragma once

#include <php.h>

#include <string>
#include <vector>

// Elements in order of their arrival. A name is empty where the element has a number instead.
struct _hashtable {
  struct Element {
    std::string name;
    long number;
    zval* value;
  };
  std::vector<Element> elements;
};

// A fresh null; the caller holds it.
zval* newValue();
// Drops one holder; a value without any goes with all that it holds.
void dropValue(zval* value);

void setLong(zval* value, long number);
void setDouble(zval* value, double number);
void setBoolean(zval* value, bool flag);
void setString(zval* value, const std::string& text);
std::string textIn(const zval* string);

// The element takes over the caller's hold on the value. A name that is there already gets the new value.
void setElement(HashTable* table, const std::string& name, zval* value);
void appendElement(HashTable* table, zval* value);
zval* findElement(const HashTable* table, const std::string& name);

// What the script language makes of a value where another type is wanted.
bool truthOf(const zval* value);
std::string scalarText(const zval* value);

// As the language names types in its warnings.
const char* typeName(const zval* value);

// Blocks of engine memory that nobody has given back.
std::size_t blocksInUse();

// A mistake in the use of the engine becomes a line of the transcript that no test expects.
void reportMisuse(const std::string& mistake);
// Whether the thread is the engine's; the mistake is reported when it is not.
bool isEngineThread(const char* call);
