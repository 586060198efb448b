// The platform's paged list. Up to PageSize elements live inside the list itself; further ones live in
// pages from the list's heap, chained in index order. Reading one element after the other costs a
// constant time each, because the list remembers where the next one lies.
//
// The management library sees the same memory: fields, their order and their widths are part of the
// interface. A list belongs to one thread; reading moves its cursor.
#pragma once

#include <cstddef>

#include "platform/Debugging.h"
#include "platform/Heap.h"
#include "platform/MemoryMgmt.h"
#include "platform/Result.h"
#include "platform/sp.h"

namespace TarnAbstract {

// The places at which a broken assumption of the list is reported.
struct ListAssertions {
  static constexpr const char* Source = "platform/include/platform/List";
  static constexpr int PageNotAllocated = 465;
  static constexpr int PageNotReleased = 477;
  static constexpr int TailPageMissing = 697;

  // Failures of the heap are reported only at the platform's more talkative debug levels.
  static void ReportHeapFailure(int line) {
    if (DebugLevels::Low <= DebugLevels::Medium) TarnDebugging::AssertionFailure(Source, line);
  }
};

template <class T, unsigned int PageSize>
class ListElementPage {
 public:
  ListElementPage() : elements(), next(nullptr) {
    for (T& element : elements) element = T();
  }
  // Takes the pages behind with it, the last one first.
  ~ListElementPage() { delete next; }
  ListElementPage(const ListElementPage&) = delete;
  ListElementPage& operator=(const ListElementPage&) = delete;

  // Null when the heap has nothing to give.
  static void* operator new(std::size_t size, sp<IHeap>& heap) noexcept {
    void* page = nullptr;
    if (Result::IsFailed(
            TarnMemoryMgmt::Alloc_and_Link(heap, static_cast<unsigned int>(size), PageSize, page))) {
      ListAssertions::ReportHeapFailure(ListAssertions::PageNotAllocated);
      return nullptr;
    }
    return page;
  }
  // NOLINTNEXTLINE(cert-dcl54-cpp,misc-new-delete-overloads): one form of delete serves the one form of new
  static void operator delete(void* page) { ReturnToHeap(page); }

  // Whether the heap took the page's memory back.
  static bool ReturnToHeap(void* page) {
    const bool returned = Result::IsSucceeded(TarnMemoryMgmt::UnLink_and_Free(page));
    if (!returned) ListAssertions::ReportHeapFailure(ListAssertions::PageNotReleased);
    return returned;
  }

  T elements[PageSize];
  ListElementPage* next;
};

template <class T, unsigned int PageSize>
class List {
 public:
  explicit List(const sp<IHeap>& heap) : heap_(heap) {}
  List(const List&) = delete;
  List& operator=(const List&) = delete;

  unsigned int Size() const { return count_; }

  // Copies element index into out. CapacityOverflow when there is no such element; out is then
  // untouched.
  Result::Code Item(unsigned int index, T& out) const {
    if (index >= count_) return Result::CapacityOverflow;
    if (cursor_ == nullptr || cursorIndex_ != index) return Item_FromStart(index, out);
    out = cursor_->elements[index % PageSize];
    MoveCursorBehind(index, cursor_);
    return Result::Succeeded;
  }

  // Adds value behind the last element. CapacityOverflow when a page is needed and the list has no
  // heap, MemoryAllocationFailure when the heap gives none; the list is then unchanged.
  Result::Code Append(const T& value) {
    if (count_ % PageSize == 0) return Append_NextPage(value);
    Store(value);
    return Result::Succeeded;
  }

 private:
  using Page = ListElementPage<T, PageSize>;

  Result::Code Item_FromStart(unsigned int index, T& out) const {
    const Page* page = &first_;
    for (unsigned int covered = PageSize; page != nullptr && index >= covered; covered += PageSize) {
      page = page->next;
    }
    if (page == nullptr) return Result::ElementNotFound;
    out = page->elements[index % PageSize];
    MoveCursorBehind(index, page);
    return Result::Succeeded;
  }

  void MoveCursorBehind(unsigned int index, const Page* page) const {
    cursorIndex_ = index + 1;
    cursor_ = cursorIndex_ % PageSize == 0 ? page->next : page;
  }

  Result::Code Append_NextPage(const T& value) {
    if (count_ >= PageSize) {
      if (tail_ == nullptr) {
        TarnDebugging::AssertionFailure(ListAssertions::Source, ListAssertions::TailPageMissing);
        tail_ = LastPage();
      }
      if (!heap_.IsValid()) return Result::CapacityOverflow;
      tail_->next = new (heap_) Page;
      if (tail_->next == nullptr) return Result::MemoryAllocationFailure;
      tail_ = tail_->next;
    } else {
      tail_ = &first_;
    }
    Store(value);
    return Result::Succeeded;
  }

  Page* LastPage() {
    Page* page = &first_;
    while (page->next != nullptr) page = page->next;
    return page;
  }

  // Every way here has set the tail.
  void Store(const T& value) {
    // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): a count that is no page boundary has a tail
    tail_->elements[count_ % PageSize] = value;
    ++count_;
  }

  sp<IHeap> heap_;
  unsigned int count_ = 0;
  Page first_;
  Page* tail_ = nullptr;
  mutable const Page* cursor_ = nullptr;
  mutable unsigned int cursorIndex_ = 0;
};

}  // namespace TarnAbstract
