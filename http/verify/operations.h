// What stands in the tables of operations of the management services, at the places that the module calls.
#pragma once

#include "closed_libraries.h"

// Each asks for the service as the module does, and calls nothing of it.
void checkMgmtAppConfig(const Module& module, const ClosedLibraries& libraries);
void checkStorageLibrary(const Module& module, const ClosedLibraries& libraries);
