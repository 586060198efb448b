// The engine as a page sees it: it loads a module and calls the module's functions.
#pragma once

#include <php.h>

#include <string>
#include <vector>

// Ends the program with the loader's sentence when the module cannot be loaded.
zend_module_entry* loadModule(const char* path);

// Null when the module has no such function.
zend_function_entry* findFunction(const zend_module_entry* module, const std::string& name);

// The result is the caller's to drop. Arguments stay the caller's; scalars are handed over as copies,
// because the engine's parser converts them in place.
zval* callFunction(const zend_function_entry& function, const std::vector<zval*>& arguments);

// What the callback writes into the engine's information page.
std::string informationWrittenBy(void (*callback)(zend_module_entry*), zend_module_entry* module);

// A new object of a class without any code.
zval* newObject(const char* className);
std::string className(const zval* object);

// Becomes a line of the transcript, as the page's error handler would write it.
void warn(const std::string& message);
