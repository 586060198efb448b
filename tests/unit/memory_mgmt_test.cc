#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "platform/MemoryMgmt.h"

using TarnAbstract::IHeap;
using TarnAbstract::Result;
using TarnAbstract::sp;
using namespace TarnAbstract::TarnMemoryMgmt;

namespace {

class CountingHeap : public virtual IHeap {
 public:
  void TakeReference() override { ++references; }
  void DropReference() override { --references; }
  Result::Code Allocate(unsigned int size, unsigned int hint, void*& block) override {
    askedSize = size;
    askedHint = hint;
    if (empty) return Result::CapacityOverflow;
    given = block = std::malloc(size);
    return Result::Succeeded;
  }
  Result::Code Release(void* block) override {
    released = block;
    referencesAtRelease = references;
    std::free(block);
    return refusing ? Result::Failed : Result::Succeeded;
  }

  int references = 0;
  bool empty = false;
  bool refusing = false;
  unsigned int askedSize = 0;
  unsigned int askedHint = 0;
  void* given = nullptr;
  void* released = nullptr;
  int referencesAtRelease = 0;
};

std::string standardErrorOf(void (*action)()) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}

// The operation at a position among those that the heap's interface declares itself; the two of the
// reference-counted base come first in the table.
void* operationAt(IHeap* heap, int slot) {
  void** table = nullptr;
  std::memcpy(&table, static_cast<void*>(heap), sizeof(table));
  return table[2 + slot];
}

}  // namespace

TEST(Heap, FourthOperationAllocatesAndFifthReleases) {
  CountingHeap heap;
  IHeap* const interface = &heap;
  void* block = nullptr;
  const auto allocate = reinterpret_cast<Result::Code (*)(IHeap*, unsigned int, unsigned int, void**)>(
      operationAt(interface, 3));
  EXPECT_EQ(Result::Succeeded, allocate(interface, 24, 9, &block));
  EXPECT_EQ(24U, heap.askedSize);
  EXPECT_EQ(9U, heap.askedHint);
  const auto release = reinterpret_cast<Result::Code (*)(IHeap*, void*)>(operationAt(interface, 4));
  EXPECT_EQ(Result::Succeeded, release(interface, block));
  EXPECT_EQ(block, heap.released);
}

TEST(LinkedBlock, AsksTheHeapForTheSizeAndTheRoomOfItsHandle) {
  CountingHeap heap;
  void* block = nullptr;
  EXPECT_EQ(Result::Succeeded, Alloc_and_Link(sp<IHeap>(&heap), 132, 4, block));
  EXPECT_EQ(132 + sizeof(sp<IHeap>), heap.askedSize);
  EXPECT_EQ(4U, heap.askedHint);
  UnLink_and_Free(block);
}

TEST(LinkedBlock, HoldsItsHeapInTheWordInFront) {
  CountingHeap heap;
  void* block = nullptr;
  Alloc_and_Link(sp<IHeap>(&heap), 16, 4, block);
  EXPECT_EQ(static_cast<void**>(heap.given) + 1, block);
  IHeap* linked = nullptr;
  std::memcpy(&linked, heap.given, sizeof(linked));
  EXPECT_EQ(&heap, linked);
  EXPECT_EQ(1, heap.references);
  EXPECT_EQ(Result::Succeeded, UnLink_and_Free(block));
  EXPECT_EQ(heap.given, heap.released);
  EXPECT_EQ(0, heap.references);
}

TEST(LinkedBlock, KeepsItsHeapUntilTheHeapHasTheBlockBack) {
  CountingHeap heap;
  void* block = nullptr;
  Alloc_and_Link(sp<IHeap>(&heap), 16, 4, block);
  UnLink_and_Free(block);
  EXPECT_EQ(1, heap.referencesAtRelease);
}

TEST(LinkedBlock, LetsGoOfAHeapThatRefusesItAndIsFreedAllTheSame) {
  const std::string report = standardErrorOf([] {
    CountingHeap heap;
    heap.refusing = true;
    void* block = nullptr;
    ASSERT_EQ(Result::Succeeded, Alloc_and_Link(sp<IHeap>(&heap), 16, 4, block));
    ASSERT_EQ(1, heap.references);
    EXPECT_EQ(Result::Succeeded, UnLink_and_Free(block));
    EXPECT_EQ(heap.given, heap.released);
    EXPECT_EQ(0, heap.references);
  });
  EXPECT_EQ("", report);
}

TEST(LinkedBlock, OfAnEmptyHeapIsAMemoryAllocationFailureAndAnAssertion) {
  const std::string report = standardErrorOf([] {
    CountingHeap heap;
    heap.empty = true;
    void* block = &heap;
    EXPECT_EQ(Result::MemoryAllocationFailure, Alloc_and_Link(sp<IHeap>(&heap), 16, 4, block));
    EXPECT_EQ(&heap, block) << "the block is written on success only";
    EXPECT_EQ(0, heap.references);
  });
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/MemoryMgmt:")) << report;
}

TEST(LinkedBlock, WithoutAHeapIsAMemoryAllocationFailure) {
  standardErrorOf([] {
    void* block = nullptr;
    EXPECT_EQ(Result::MemoryAllocationFailure, Alloc_and_Link(sp<IHeap>(nullptr), 16, 4, block));
  });
}

TEST(LinkedBlock, NullIsAnAssertionAndAFailure) {
  const std::string report = standardErrorOf([] { EXPECT_TRUE(Result::IsFailed(UnLink_and_Free(nullptr))); });
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/MemoryMgmt:")) << report;
}

TEST(LinkedBlock, WithoutAHandleInFrontIsAnAssertionAndAFailure) {
  const std::string report = standardErrorOf([] {
    void* words[2] = {nullptr, nullptr};
    EXPECT_TRUE(Result::IsFailed(UnLink_and_Free(&words[1])));
  });
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/MemoryMgmt:")) << report;
}

TEST(TransientHeap, IsOneForAllAndServesLinkedBlocks) {
  EXPECT_TRUE(getSystemTransientObjHeap() == getSystemTransientObjHeap());
  void* block = nullptr;
  ASSERT_EQ(Result::Succeeded, Alloc_and_Link(getSystemTransientObjHeap(), 64, 4, block));
  std::memset(block, 0xA5, 64);
  EXPECT_EQ(Result::Succeeded, UnLink_and_Free(block));
}
