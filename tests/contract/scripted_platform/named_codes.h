// The result codes that have a name, for reading and for writing.
#pragma once

#include <array>

#include "platform/Result.h"

struct NamedCode {
  const char* name;
  TarnAbstract::Result::Code code;
};

inline std::array<NamedCode, 5> namedCodes() {
  using TarnAbstract::Result;
  return {{{"Succeeded", Result::Succeeded},
           {"Failed", Result::Failed},
           {"ElementNotFound", Result::ElementNotFound},
           {"CapacityOverflow", Result::CapacityOverflow},
           {"MemoryAllocationFailure", Result::MemoryAllocationFailure}}};
}
