// Names that only the interpreter has. Libraries that take some from it cannot be loaded without; here they
// get them from a library that is made for it. Nobody may call what stands there.
#pragma once

#include <string>

// Makes the name known to all that is loaded from now on. False, with a reason, when that is impossible.
bool standIn(const std::string& name, std::string& reason);
