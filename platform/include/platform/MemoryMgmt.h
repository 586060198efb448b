// Memory of platform objects. A linked block remembers its heap: the word in front of the address that
// a caller sees holds a handle to the heap that the block came from.
#pragma once

#include "platform/Heap.h"
#include "platform/Result.h"
#include "platform/sp.h"

namespace TarnAbstract {
namespace TarnMemoryMgmt {

// The heap for objects that live no longer than one call.
sp<IHeap> getSystemTransientObjHeap();

// Takes size bytes and the room for the heap's handle from the heap; hint is passed on to the heap
// unchanged. block receives the address behind the handle. A heap that gives nothing is an assertion
// failure, and MemoryAllocationFailure is returned.
Result::Code Alloc_and_Link(const sp<IHeap>& heap, unsigned int size, unsigned int hint, void*& block);

// Gives a block of Alloc_and_Link back to its heap and drops the handle in front of it.
Result::Code UnLink_and_Free(void* block);

}  // namespace TarnMemoryMgmt
}  // namespace TarnAbstract
