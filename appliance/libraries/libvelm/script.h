// Running one of the appliance's own scripts.
#pragma once

#include <string>

namespace Velm {

// Runs the program at path without arguments and waits for its end. Its standard input and output are
// empty, its standard error is the caller's, and it gets none of the caller's other descriptors.
// Throws ServiceError unless it ends with exit status 0.
void RunScript(const std::string& path);

}  // namespace Velm
