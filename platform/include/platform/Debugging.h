// The platform's assertion reports and the levels that decide which of them are made.
#pragma once

namespace TarnAbstract {

class DebugLevels {
 public:
  static const unsigned int Low;
  static const unsigned int Medium;
};

namespace TarnDebugging {

// Reports a broken assumption in the named source; returns to the caller.
void AssertionFailure(const char* path, int line);

}  // namespace TarnDebugging
}  // namespace TarnAbstract
