// A platform library that takes the heap by value: another name for who is linked with it.
#include "platform/MemoryMgmt.h"

namespace TarnAbstract {
namespace TarnMemoryMgmt {

// NOLINTNEXTLINE(performance-unnecessary-value-param): that is what is tried
Result::Code Alloc_and_Link(sp<IHeap> heap, unsigned int /*size*/, unsigned int /*hint*/, void*& block) {
  block = nullptr;
  return heap.IsValid() ? Result::Failed : Result::MemoryAllocationFailure;
}

}  // namespace TarnMemoryMgmt
}  // namespace TarnAbstract
