// As a program in C has them.
extern "C" {
void php_error_docref0(const char* docref, int type, const char* format, ...);
void php_info_print_table_start();
void php_info_print_table_header(int num_cols, ...);
void php_info_print_table_end();
}

#include "engine.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ext/standard/info.h>
#include <map>
#include <optional>

#include "values.h"

struct _zend_class_entry {
  std::string name;
};

namespace {

struct Call {
  std::string function;
  std::vector<zval*> arguments;
};
Call currentCall;
std::string information;

zend_class_entry* classNamed(const std::string& name) {
  static std::map<std::string, zend_class_entry> classes;
  zend_class_entry& entry = classes[name];
  entry.name = name;
  return &entry;
}

void makeObject(zval* value, const char* name) {
  value->value.obj.ce = classNamed(name);
  Z_OBJPROP_P(value) = new HashTable;
  Z_TYPE_P(value) = IS_OBJECT;
}

// Names come with the NUL behind them counted.
std::optional<std::string> nameOf(const char* key, unsigned int size) {
  if (size > 0 && std::memchr(key, '\0', size) == key + size - 1) return std::string(key, size - 1);
  reportMisuse("the length " + std::to_string(size) + " of a name does not count its NUL");
  return std::nullopt;
}

bool hasType(const zval* value, int type, const char* call) {
  if (Z_TYPE_P(value) == type) return true;
  reportMisuse(std::string(call) + " on a value of the type " + typeName(value));
  return false;
}

// The new property is null; the caller gives it its value.
zval* addProperty(zval* object, const char* key, unsigned int size, const char* call) {
  if (!isEngineThread(call) || !hasType(object, IS_OBJECT, call)) return nullptr;
  const std::optional<std::string> name = nameOf(key, size);
  if (!name) return nullptr;
  zval* const value = newValue();
  setElement(Z_OBJPROP_P(object), *name, value);
  return value;
}

// Whether the whole text is a number; integer is its value without a fraction.
bool isNumeric(const std::string& text, long& integer) {
  if (text.empty() || std::isspace(static_cast<unsigned char>(text.back())) != 0) return false;
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  integer = static_cast<long>(value);
  return end == text.c_str() + text.size() && text.find_first_of("xXnN") == std::string::npos;
}

bool isCompound(const zval* value) { return Z_TYPE_P(value) == IS_ARRAY || Z_TYPE_P(value) == IS_OBJECT; }

bool takeLong(zval* argument, long* destination) {
  long number = 0;
  if (isCompound(argument)) return false;
  if (Z_TYPE_P(argument) == IS_STRING && !isNumeric(textIn(argument), number)) return false;
  if (Z_TYPE_P(argument) == IS_DOUBLE) number = static_cast<long>(Z_DVAL_P(argument));
  if (Z_TYPE_P(argument) == IS_LONG || Z_TYPE_P(argument) == IS_BOOL) number = Z_LVAL_P(argument);
  *destination = number;
  return true;
}

bool takeString(zval* argument, char** characters, int* length) {
  if (isCompound(argument)) return false;
  if (Z_TYPE_P(argument) != IS_STRING) setString(argument, scalarText(argument));
  *characters = Z_STRVAL_P(argument);
  *length = Z_STRLEN_P(argument);
  return true;
}

// Null when the argument was taken, else the name of the wanted type.
const char* takeArgument(zval* argument, char letter, va_list* destinations) {
  switch (letter) {
    case 'o': {
      zval** const destination = va_arg(*destinations, zval**);
      if (Z_TYPE_P(argument) != IS_OBJECT) return "object";
      *destination = argument;
      return nullptr;
    }
    case 'l':
      return takeLong(argument, va_arg(*destinations, long*)) ? nullptr : "long";
    case 's': {
      char** const characters = va_arg(*destinations, char**);
      return takeString(argument, characters, va_arg(*destinations, int*)) ? nullptr : "string";
    }
    case 'b': {
      unsigned char* const destination = va_arg(*destinations, unsigned char*);
      if (isCompound(argument)) return "boolean";
      *destination = truthOf(argument) ? 1 : 0;
      return nullptr;
    }
    default:
      reportMisuse(std::string("a format with the letter ") + letter);
      return "nothing";
  }
}

zval* copyForCall(zval* argument) {
  if (isCompound(argument)) {
    ++argument->refcount;
    return argument;
  }
  zval* const copy = newValue();
  if (Z_TYPE_P(argument) == IS_STRING) {
    setString(copy, textIn(argument));
  } else {
    copy->value = argument->value;
    Z_TYPE_P(copy) = Z_TYPE_P(argument);
  }
  return copy;
}

}  // namespace

void warn(const std::string& message) {
  const std::string line = "Warning: " + message + '\n';
  if (write(STDERR_FILENO, line.data(), line.size()) < 0) std::abort();
}

// Its own libraries before everything that is loaded already, as the engine does it.
zend_module_entry* loadModule(const char* path) {
  void* const library = dlopen(path, RTLD_NOW | RTLD_DEEPBIND);
  void* const entryPoint = library == nullptr ? nullptr : dlsym(library, "get_module");
  if (entryPoint == nullptr) {
    std::printf("%s\n", dlerror());
    std::exit(1);
  }
  return reinterpret_cast<zend_module_entry* (*)()>(entryPoint)();
}

zend_function_entry* findFunction(const zend_module_entry* module, const std::string& name) {
  for (zend_function_entry* entry = module->functions; entry->fname != nullptr; ++entry) {
    if (name == entry->fname) return entry;
  }
  return nullptr;
}

zval* callFunction(const zend_function_entry& function, const std::vector<zval*>& arguments) {
  currentCall = {function.fname, {}};
  for (zval* const argument : arguments) currentCall.arguments.push_back(copyForCall(argument));
  zval* const result = newValue();
  function.handler(static_cast<int>(arguments.size()), result, nullptr, 1);
  if (result->refcount != 1 || result->is_ref != 0) reportMisuse("the result is held elsewhere");
  for (zval* const argument : currentCall.arguments) dropValue(argument);
  currentCall.arguments.clear();
  return result;
}

std::string informationWrittenBy(void (*callback)(zend_module_entry*), zend_module_entry* module) {
  information.clear();
  callback(module);
  return information;
}

zval* newObject(const char* className) {
  zval* const object = newValue();
  makeObject(object, className);
  return object;
}

std::string className(const zval* object) { return object->value.obj.ce->name; }

int zend_parse_parameters(int num_args, char* type_spec, ...) {
  isEngineThread("zend_parse_parameters");
  const int wanted = static_cast<int>(std::strlen(type_spec));
  if (num_args != static_cast<int>(currentCall.arguments.size())) reportMisuse("a wrong number of arguments");
  if (num_args != wanted) {
    warn(currentCall.function + "() expects exactly " + std::to_string(wanted) +
         (wanted == 1 ? " parameter, " : " parameters, ") + std::to_string(num_args) + " given");
    return FAILURE;
  }
  va_list destinations;
  va_start(destinations, type_spec);
  int result = SUCCESS;
  for (int i = 0; i < wanted && result == SUCCESS; ++i) {
    zval* const argument = currentCall.arguments[i];
    const char* const expected = takeArgument(argument, type_spec[i], &destinations);
    if (expected == nullptr) continue;
    warn(currentCall.function + "() expects parameter " + std::to_string(i + 1) + " to be " + expected +
         ", " + typeName(argument) + " given");
    result = FAILURE;
  }
  va_end(destinations);
  return result;
}

int _object_init(zval* value) {
  isEngineThread("_object_init");
  makeObject(value, "stdClass");
  return SUCCESS;
}

int _array_init(zval* value) {
  isEngineThread("_array_init");
  Z_ARRVAL_P(value) = new HashTable;
  Z_TYPE_P(value) = IS_ARRAY;
  return SUCCESS;
}

int add_property_bool_ex(zval* object, char* key, unsigned int key_len, int flag) {
  zval* const property = addProperty(object, key, key_len, "add_property_bool_ex");
  if (property == nullptr) return FAILURE;
  setBoolean(property, flag != 0);
  return SUCCESS;
}

int add_property_long_ex(zval* object, char* key, unsigned int key_len, long number) {
  zval* const property = addProperty(object, key, key_len, "add_property_long_ex");
  if (property == nullptr) return FAILURE;
  setLong(property, number);
  return SUCCESS;
}

int add_property_string_ex(zval* object, char* key, unsigned int key_len, char* text, int duplicate) {
  zval* const property = addProperty(object, key, key_len, "add_property_string_ex");
  if (property == nullptr) return FAILURE;
  if (duplicate == 0) reportMisuse("a property's text is handed over instead of copied");
  setString(property, text);
  return SUCCESS;
}

int add_next_index_string(zval* array, char* text, int duplicate) {
  if (!isEngineThread("add_next_index_string")) return FAILURE;
  if (!hasType(array, IS_ARRAY, "add_next_index_string")) return FAILURE;
  if (duplicate == 0) reportMisuse("an element's text is handed over instead of copied");
  zval* const element = newValue();
  setString(element, text);
  appendElement(Z_ARRVAL_P(array), element);
  return SUCCESS;
}

int add_next_index_zval(zval* array, zval* value) {
  if (!isEngineThread("add_next_index_zval")) return FAILURE;
  if (!hasType(array, IS_ARRAY, "add_next_index_zval")) return FAILURE;
  if (value->refcount != 1 || value->is_ref != 0)
    reportMisuse("an element was not initialised as a fresh value");
  appendElement(Z_ARRVAL_P(array), value);
  return SUCCESS;
}

int zend_hash_find(HashTable* table, char* key, unsigned int key_len, void** data) {
  if (!isEngineThread("zend_hash_find")) return FAILURE;
  const std::optional<std::string> name = nameOf(key, key_len);
  if (!name) return FAILURE;
  for (HashTable::Element& element : table->elements) {
    if (element.name != *name) continue;
    *data = &element.value;
    return SUCCESS;
  }
  return FAILURE;
}

int zend_is_true(zval* value) {
  isEngineThread("zend_is_true");
  return truthOf(value) ? 1 : 0;
}

void php_error_docref0(const char* /*docref*/, int type, const char* format, ...) {
  if (type != E_WARNING) reportMisuse("a message of the level " + std::to_string(type));
  char message[4096];
  va_list arguments;
  va_start(arguments, format);
  (void)std::vsnprintf(message, sizeof(message), format, arguments);
  va_end(arguments);
  warn(currentCall.function + "(): " + message);
}

void php_info_print_table_start() { information += "table\n"; }

void php_info_print_table_header(int num_cols, ...) {
  va_list columns;
  va_start(columns, num_cols);
  information += "header";
  for (int i = 0; i < num_cols; ++i) information += std::string(" [") + va_arg(columns, const char*) + ']';
  information += '\n';
  va_end(columns);
}

void php_info_print_table_end() { information += "end of table\n"; }
