// A heap of the platform. Its fourth operation gives a block and its fifth takes one back.
#pragma once

#include "platform/Interface.h"
#include "platform/Result.h"

namespace TarnAbstract {

class IHeap : public virtual IInterface {
 public:
  PLATFORM_RESERVED_SLOT(0)
  PLATFORM_RESERVED_SLOT(1)
  PLATFORM_RESERVED_SLOT(2)
  // size in bytes; hint is the caller's and has no meaning here; block is written on success only.
  virtual Result::Code Allocate(unsigned int size, unsigned int hint, void*& block) = 0;
  virtual Result::Code Release(void* block) = 0;

 protected:
  ~IHeap() = default;
};

}  // namespace TarnAbstract
