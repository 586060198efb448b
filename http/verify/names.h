// Whether the libraries have what the module takes from them.
#pragma once

#include "closed_libraries.h"

void checkNames(const Module& module, const ClosedLibraries& libraries);
