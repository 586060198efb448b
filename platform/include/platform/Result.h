// Result codes of the platform and of everything built on it: unsigned, 32 bits, success exactly when
// the top bit is set. The named codes are read from the platform library at run time; nothing may
// depend on their numbers.
#pragma once

#include <cstdint>

namespace TarnAbstract {

class Result {
 public:
  using Code = std::uint32_t;

  static const Code Succeeded;
  static const Code Failed;
  static const Code ElementNotFound;
  static const Code CapacityOverflow;
  static const Code MemoryAllocationFailure;

  static bool IsSucceeded(Code code) { return (code & 0x80000000U) != 0; }
  static bool IsFailed(Code code) { return !IsSucceeded(code); }
};

}  // namespace TarnAbstract
