// The module's functions as the engine's table has them; each engine's file builds it.
#pragma once

#include <php.h>

extern zend_function_entry moduleFunctions[];
