// The engine with module API number 20020429, without its language: it loads the module and calls the
// module's functions for a page that runs elsewhere.
//
// Standard input carries lines "FUNCTION LENGTH", each followed by so many bytes: the serialised array of the
// arguments. Standard output answers each with "LENGTH" on a line and the serialised result. Two functions
// are the engine's own: "module_record", the module's record byte by byte, and "information_page".
// Standard error is the page's transcript.
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "engine.h"
#include "module_record.h"
#include "serialized.h"
#include "values.h"

namespace {

// The functions of the record under their names, then the engine's own.
std::string namesOfFunctions(const zend_module_entry* module) {
  std::string names;
  for (const zend_function_entry* entry = module->functions; entry->fname != nullptr; ++entry) {
    names += std::string(entry->fname) + ' ';
  }
  return names + "module_record information_page";
}

zval* stringValue(const std::string& text) {
  zval* const value = newValue();
  setString(value, text);
  return value;
}

zval* call(zend_module_entry* module, const std::string& name, const zval* arguments) {
  if (name == "module_record") return stringValue(moduleRecord(module));
  if (name == "information_page") return stringValue(informationPage(module));
  const zend_function_entry* const function = findFunction(module, name);
  if (function == nullptr) {
    reportMisuse("the module has no function " + name);
    return newValue();
  }
  std::vector<zval*> values;
  for (const HashTable::Element& element : Z_ARRVAL_P(arguments)->elements) values.push_back(element.value);
  return callFunction(*function, values);
}

std::string answer(zend_module_entry* module, const std::string& name, const std::string& request) {
  zval* const arguments = unserialized(request);
  if (arguments == nullptr || Z_TYPE_P(arguments) != IS_ARRAY) {
    reportMisuse("the arguments of " + name + " cannot be handed over");
    return "N;";
  }
  const std::string before = serialized(arguments);
  zval* const result = call(module, name, arguments);
  if (serialized(arguments) != before) reportMisuse(name + " has changed its arguments");
  std::string text = serialized(result);
  dropValue(result);
  dropValue(arguments);
  if (blocksInUse() != 0) reportMisuse(name + " has kept engine memory");
  return text;
}

void reply(const std::string& text) { std::cout << text.size() << '\n' << text << std::flush; }

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    (void)std::fprintf(stderr, "Usage: engine_host MODULE\n");
    return 2;
  }
  zend_module_entry* const module = loadModule(argv[1]);
  reply(namesOfFunctions(module));
  std::string name;
  std::size_t length = 0;
  while (std::cin >> name >> length && std::cin.ignore(1)) {
    std::string request(length, '\0');
    std::cin.read(request.data(), static_cast<std::streamsize>(length));
    reply(answer(module, name, request));
  }
}
