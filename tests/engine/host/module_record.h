// What the engine reads of a module besides its functions.
#pragma once

#include <php.h>

#include <string>

// The record as bytes, a line per field in their order: its offset, its width, its value. Pointers are
// followed where they lead to texts, and called where they lead to callbacks that shall do nothing.
std::string moduleRecord(zend_module_entry* module);

// What the module's information callback writes.
std::string informationPage(zend_module_entry* module);
