#include "values.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <thread>

namespace {

const std::thread::id engineThread = std::this_thread::get_id();

std::set<void*>& blocks() {
  static std::set<void*> inUse;
  return inUse;
}

void giveBack(void* block, const char* what) {
  if (blocks().erase(block) == 0) {
    reportMisuse(std::string(what) + " is no memory of the engine");
    return;
  }
  std::free(block);
}

void dropTable(HashTable* table) {
  for (const HashTable::Element& element : table->elements) dropValue(element.value);
  delete table;
}

// The value becomes null.
void clear(zval* value) {
  switch (Z_TYPE_P(value)) {
    case IS_STRING:
      giveBack(Z_STRVAL_P(value), "the text of a value");
      break;
    case IS_ARRAY:
      dropTable(Z_ARRVAL_P(value));
      break;
    case IS_OBJECT:
      dropTable(Z_OBJPROP_P(value));
      break;
    default:
      break;
  }
  Z_TYPE_P(value) = IS_NULL;
}

}  // namespace

void reportMisuse(const std::string& mistake) {
  const std::string line = "unexpected: " + mistake + '\n';
  if (write(STDERR_FILENO, line.data(), line.size()) < 0) std::abort();
}

bool isEngineThread(const char* call) {
  if (std::this_thread::get_id() == engineThread) return true;
  reportMisuse(std::string(call) + " called on a thread that is not the engine's");
  return false;
}

void* _emalloc(size_t size) {
  isEngineThread("_emalloc");
  void* const block = std::malloc(size);
  if (block == nullptr) std::abort();
  std::memset(block, 0xA5, size);  // nobody may count on zeros
  blocks().insert(block);
  return block;
}

char* _estrndup(const char* text, unsigned int length) {
  char* const copy = static_cast<char*>(_emalloc(length + 1));
  std::memcpy(copy, text, length);
  copy[length] = '\0';
  return copy;
}

std::size_t blocksInUse() { return blocks().size(); }

zval* newValue() {
  zval* const value = static_cast<zval*>(_emalloc(sizeof(zval)));
  INIT_PZVAL(value);
  Z_TYPE_P(value) = IS_NULL;
  return value;
}

void dropValue(zval* value) {
  if (value->is_ref != 0 || value->refcount == 0) reportMisuse("a value was not initialised as a fresh one");
  if (--value->refcount != 0) return;
  clear(value);
  giveBack(value, "a value");
}

void setLong(zval* value, long number) {
  clear(value);
  Z_LVAL_P(value) = number;
  Z_TYPE_P(value) = IS_LONG;
}

void setDouble(zval* value, double number) {
  clear(value);
  Z_DVAL_P(value) = number;
  Z_TYPE_P(value) = IS_DOUBLE;
}

void setBoolean(zval* value, bool flag) {
  clear(value);
  Z_LVAL_P(value) = flag ? 1 : 0;
  Z_TYPE_P(value) = IS_BOOL;
}

void setString(zval* value, const std::string& text) {
  clear(value);
  Z_STRVAL_P(value) = _estrndup(text.data(), text.size());
  Z_STRLEN_P(value) = static_cast<int>(text.size());
  Z_TYPE_P(value) = IS_STRING;
}

std::string textIn(const zval* string) {
  return {Z_STRVAL_P(string), static_cast<std::size_t>(Z_STRLEN_P(string))};
}

void setElement(HashTable* table, const std::string& name, zval* value) {
  for (HashTable::Element& element : table->elements) {
    if (element.name != name) continue;
    dropValue(element.value);
    element.value = value;
    return;
  }
  table->elements.push_back({name, 0, value});
}

void appendElement(HashTable* table, zval* value) {
  long number = 0;
  for (const HashTable::Element& element : table->elements) {
    if (element.name.empty()) number = element.number + 1;
  }
  table->elements.push_back({"", number, value});
}

zval* findElement(const HashTable* table, const std::string& name) {
  for (const HashTable::Element& element : table->elements) {
    if (element.name == name) return element.value;
  }
  return nullptr;
}

bool truthOf(const zval* value) {
  switch (Z_TYPE_P(value)) {
    case IS_NULL:
      return false;
    case IS_DOUBLE:
      return Z_DVAL_P(value) != 0;
    case IS_STRING:
      return !textIn(value).empty() && textIn(value) != "0";
    case IS_ARRAY:
      return !Z_ARRVAL_P(value)->elements.empty();
    case IS_OBJECT:
      return !Z_OBJPROP_P(value)->elements.empty();
    default:
      return Z_LVAL_P(value) != 0;
  }
}

std::string scalarText(const zval* value) {
  constexpr int Precision = 14;
  char text[64];
  switch (Z_TYPE_P(value)) {
    case IS_LONG:
      return std::to_string(Z_LVAL_P(value));
    case IS_DOUBLE:
      (void)std::snprintf(text, sizeof(text), "%.*G", Precision, Z_DVAL_P(value));
      return text;
    case IS_BOOL:
      return Z_LVAL_P(value) != 0 ? "1" : "";
    case IS_STRING:
      return textIn(value);
    default:
      return "";
  }
}

const char* typeName(const zval* value) {
  static const char* const names[] = {"null", "integer", "double", "string", "array", "object", "boolean"};
  return names[Z_TYPE_P(value)];
}
