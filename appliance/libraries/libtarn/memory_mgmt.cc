#include <cstdlib>
#include <new>

#include "libtarn/reference_counted.h"
#include "platform/Debugging.h"
#include "platform/MemoryMgmt.h"

namespace TarnAbstract {
namespace TarnMemoryMgmt {
namespace {

constexpr const char* Source = "platform/include/platform/MemoryMgmt";

using HeapLink = sp<IHeap>;

class TransientObjHeap : public ReferenceCounted<IHeap> {
 public:
  Result::Code Allocate(unsigned int size, unsigned int /*hint*/, void*& block) override {
    void* const memory = std::malloc(size);
    if (memory == nullptr) return Result::MemoryAllocationFailure;
    block = memory;
    return Result::Succeeded;
  }
  Result::Code Release(void* block) override {
    std::free(block);
    return Result::Succeeded;
  }
};

void AssertAt(int line) {
  if (DebugLevels::Low <= DebugLevels::Medium) TarnDebugging::AssertionFailure(Source, line);
}

}  // namespace

sp<IHeap> getSystemTransientObjHeap() {
  // Never destroyed: objects on it may go after this library's own constants have.
  static const sp<IHeap>* const heap = new sp<IHeap>(new TransientObjHeap);
  return *heap;
}

Result::Code Alloc_and_Link(const sp<IHeap>& heap, unsigned int size, unsigned int hint, void*& block) {
  void* memory = nullptr;
  if (!heap.IsValid() || Result::IsFailed(heap->Allocate(size + sizeof(HeapLink), hint, memory))) {
    AssertAt(__LINE__);
    return Result::MemoryAllocationFailure;
  }
  block = new (memory) HeapLink(heap) + 1;
  return Result::Succeeded;
}

Result::Code UnLink_and_Free(void* block) {
  if (block == nullptr) {
    AssertAt(__LINE__);
    return Result::Failed;
  }
  HeapLink* const link = static_cast<HeapLink*>(block) - 1;
  if (!link->IsValid()) {
    AssertAt(__LINE__);
    return Result::Failed;
  }
  // The link lies in the block that goes: keep the heap by a handle outside of it until it has gone.
  const HeapLink heap(*link);
  link->~HeapLink();
  heap->Release(link);
  return Result::Succeeded;
}

}  // namespace TarnMemoryMgmt
}  // namespace TarnAbstract
