#include "platform/Debugging.h"

#include <cstdio>

namespace TarnAbstract {

const unsigned int DebugLevels::Low = 1;
const unsigned int DebugLevels::Medium = 2;

void TarnDebugging::AssertionFailure(const char* path, int line) {
  std::fprintf(stderr, "assertion failed: %s:%d\n", path, line);
}

}  // namespace TarnAbstract
