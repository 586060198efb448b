#include "platform/List.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "libtarn/string_access.h"
#include "management/SNMP.h"
#include "management/TrapRegistration.h"

using TarnAbstract::IHeap;
using TarnAbstract::List;
using TarnAbstract::ListElementPage;
using TarnAbstract::Result;
using TarnAbstract::sp;
using TarnAbstract::String;
using TarnAbstract::StringAccess;

namespace {

class CountingHeap : public virtual IHeap {
 public:
  void TakeReference() override { ++references; }
  void DropReference() override { --references; }
  Result::Code Allocate(unsigned int size, unsigned int hint, void*& block) override {
    lastSize = size;
    lastHint = hint;
    if (failing) return Result::Failed;
    block = std::malloc(size);
    given.push_back(block);
    return Result::Succeeded;
  }
  Result::Code Release(void* block) override {
    returned.push_back(block);
    std::free(block);
    return Result::Succeeded;
  }

  int references = 0;
  bool failing = false;
  unsigned int lastSize = 0;
  unsigned int lastHint = 0;
  std::vector<void*> given;
  std::vector<void*> returned;
};

// An element that knows how many of its kind are alive.
struct Counted {
  Counted() { ++alive; }
  explicit Counted(int number) : value(number) { ++alive; }
  Counted(const Counted& other) : value(other.value) { ++alive; }
  Counted& operator=(const Counted& other) = default;
  ~Counted() { --alive; }
  int value = 0;
  static int alive;
};
int Counted::alive = 0;

// The memory of a list as the management library sees it.
template <class T>
struct RawPage {
  T elements[4];
  RawPage* next;
};
template <class T>
struct RawList {
  IHeap* heap;
  unsigned int count;
  RawPage<T> first;
  RawPage<T>* tail;
  RawPage<T>* cursor;
  unsigned int cursorIndex;
};

using Numbers = List<int, 4>;

RawList<int>& raw(Numbers& list) { return reinterpret_cast<RawList<int>&>(list); }

class ListOfNumbers : public testing::Test {
 protected:
  void append(int howMany) {
    for (int i = 0; i < howMany; ++i) {
      ASSERT_EQ(Result::Succeeded, list.Append(static_cast<int>(list.Size()) * 10));
    }
  }
  int read(unsigned int index) {
    int value = -1;
    EXPECT_EQ(Result::Succeeded, list.Item(index, value));
    return value;
  }
  unsigned int timesIn(const std::string& report, const std::string& line) {
    unsigned int times = 0;
    for (auto at = report.find(line); at != std::string::npos; at = report.find(line, at + 1)) ++times;
    return times;
  }
  std::string standardErrorOfAppend(Result::Code expected) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(expected, list.Append(1));
    return testing::internal::GetCapturedStderr();
  }

  CountingHeap heap;
  Numbers list{sp<IHeap>(&heap)};
};

}  // namespace

static_assert(sizeof(RawList<int>) == sizeof(Numbers), "the list has these fields and no others");

TEST_F(ListOfNumbers, StartsEmptyWithItsHeapAndNeitherTailNorCursor) {
  EXPECT_EQ(0U, list.Size());
  EXPECT_EQ(&heap, raw(list).heap);
  EXPECT_EQ(1, heap.references);
  EXPECT_EQ(0U, raw(list).count);
  EXPECT_EQ(nullptr, raw(list).first.next);
  EXPECT_EQ(nullptr, raw(list).tail);
  EXPECT_EQ(nullptr, raw(list).cursor);
  EXPECT_EQ(0U, raw(list).cursorIndex);
}

TEST_F(ListOfNumbers, EmptyGivesCapacityOverflowForItsFirstItem) {
  int value = 7;
  EXPECT_EQ(Result::CapacityOverflow, list.Item(0, value));
  EXPECT_EQ(7, value);
}

TEST_F(ListOfNumbers, IndexPastTheEndIsCapacityOverflowAndLeavesValueAndCursor) {
  append(5);
  read(0);
  const RawList<int>& memory = raw(list);
  const auto* const cursor = memory.cursor;
  int value = 7;
  EXPECT_EQ(Result::CapacityOverflow, list.Item(5, value));
  EXPECT_EQ(Result::CapacityOverflow, list.Item(4000000000U, value));
  EXPECT_EQ(7, value);
  EXPECT_EQ(cursor, memory.cursor);
  EXPECT_EQ(1U, memory.cursorIndex);
}

TEST_F(ListOfNumbers, FourAppendsAllocateNothingAndStayInTheFirstPage) {
  append(4);
  EXPECT_TRUE(heap.given.empty());
  EXPECT_EQ(&raw(list).first, raw(list).tail);
  EXPECT_EQ(4U, list.Size());
}

TEST_F(ListOfNumbers, FifthAppendAllocatesExactlyOnePage) {
  append(5);
  EXPECT_EQ(1U, heap.given.size());
  EXPECT_EQ(sizeof(ListElementPage<int, 4>) + sizeof(sp<IHeap>), heap.lastSize);
  EXPECT_EQ(4U, heap.lastHint);
  EXPECT_EQ(raw(list).first.next, raw(list).tail);
  EXPECT_EQ(40, raw(list).tail->elements[0]);
  append(3);
  EXPECT_EQ(1U, heap.given.size());
  append(1);
  EXPECT_EQ(2U, heap.given.size());
}

TEST_F(ListOfNumbers, FirstReadWalksAndLeavesTheCursorBehindIt) {
  append(6);
  EXPECT_EQ(0, read(0));
  EXPECT_EQ(&raw(list).first, raw(list).cursor);
  EXPECT_EQ(1U, raw(list).cursorIndex);
}

TEST_F(ListOfNumbers, SequentialReadsComeFromTheCursorsPage) {
  append(6);
  read(0);
  RawPage<int> decoy = {{100, 101, 102, 103}, raw(list).first.next};
  raw(list).cursor = &decoy;
  EXPECT_EQ(101, read(1));
  EXPECT_EQ(102, read(2));
  EXPECT_EQ(103, read(3));
  EXPECT_EQ(raw(list).first.next, raw(list).cursor) << "after index 3 the cursor crosses to the second page";
  EXPECT_EQ(40, read(4));
  EXPECT_EQ(50, read(5));
}

TEST_F(ListOfNumbers, ReadingOutOfOrderWalksFromTheFirstPage) {
  append(6);
  EXPECT_EQ(50, read(5));
  RawPage<int> decoy = {{100, 101, 102, 103}, nullptr};
  raw(list).cursor = &decoy;
  EXPECT_EQ(20, read(2)) << "not the element the cursor expects, so not from its page";
  EXPECT_EQ(&raw(list).first, raw(list).cursor);
  EXPECT_EQ(3U, raw(list).cursorIndex);
}

TEST_F(ListOfNumbers, ReadingTheLastElementOfTheLastPageLeavesNoCursor) {
  append(8);
  EXPECT_EQ(70, read(7));
  EXPECT_EQ(nullptr, raw(list).cursor);
  EXPECT_EQ(8U, raw(list).cursorIndex);
  append(1);
  EXPECT_EQ(80, read(8)) << "an element appended behind is found by walking";
}

TEST_F(ListOfNumbers, ChainShorterThanTheCountIsElementNotFound) {
  append(6);
  read(0);
  RawPage<int>* const second = raw(list).first.next;
  raw(list).first.next = nullptr;
  int value = 7;
  EXPECT_EQ(Result::ElementNotFound, list.Item(5, value));
  EXPECT_EQ(7, value);
  EXPECT_EQ(&raw(list).first, raw(list).cursor);
  EXPECT_EQ(1U, raw(list).cursorIndex);
  raw(list).first.next = second;
}

TEST_F(ListOfNumbers, WithoutAHeapTheFifthAppendIsCapacityOverflowAndChangesNothing) {
  Numbers heapless{sp<IHeap>(nullptr)};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Result::Succeeded, heapless.Append(i));
  EXPECT_EQ(Result::CapacityOverflow, heapless.Append(4));
  EXPECT_EQ(4U, heapless.Size());
  EXPECT_EQ(nullptr, raw(heapless).first.next);
  EXPECT_EQ(&raw(heapless).first, raw(heapless).tail);
}

TEST_F(ListOfNumbers, HeapWithNothingToGiveIsMemoryAllocationFailureWithTheAssertionAtLine465) {
  append(4);
  heap.failing = true;
  const std::string report = standardErrorOfAppend(Result::MemoryAllocationFailure);
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/List:465\n")) << report;
  EXPECT_EQ(4U, list.Size());
  EXPECT_EQ(nullptr, raw(list).tail->next);
  heap.failing = false;
  append(1);
  EXPECT_EQ(40, read(4));
}

TEST_F(ListOfNumbers, MissingTailAtAPageBoundaryIsTheAssertionAtLine697) {
  append(8);
  raw(list).tail = nullptr;
  const std::string report = standardErrorOfAppend(Result::Succeeded);
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/List:697\n")) << report;
  EXPECT_EQ(9U, list.Size());
  EXPECT_EQ(1, read(8)) << "and the append goes on behind the last page";
}

TEST_F(ListOfNumbers, LosingItsHeapMakesTheNinthAppendCapacityOverflowAndChangesNothing) {
  append(8);
  RawPage<int>* const second = raw(list).first.next;
  raw(list).heap = nullptr;
  EXPECT_EQ("", standardErrorOfAppend(Result::CapacityOverflow));
  raw(list).heap = &heap;
  EXPECT_EQ(8U, list.Size());
  EXPECT_EQ(second, raw(list).tail);
  EXPECT_EQ(nullptr, second->next);
  EXPECT_EQ(1U, heap.given.size());
}

TEST_F(ListOfNumbers, MissingTailIsAssertedBeforeTheMissingHeapIsCapacityOverflow) {
  append(8);
  RawPage<int>* const second = raw(list).first.next;
  raw(list).heap = nullptr;
  raw(list).tail = nullptr;
  EXPECT_EQ("assertion failed: platform/include/platform/List:697\n",
            standardErrorOfAppend(Result::CapacityOverflow));
  raw(list).heap = &heap;
  EXPECT_EQ(8U, list.Size());
  EXPECT_EQ(second, raw(list).first.next);
  EXPECT_EQ(nullptr, second->next);
  EXPECT_EQ(1U, heap.given.size());
}

TEST_F(ListOfNumbers, PageThatItsHeapDoesNotTakeBackIsTheAssertionAtLine477) {
  using Page = ListElementPage<int, 4>;
  void* words[2] = {nullptr, nullptr};
  testing::internal::CaptureStderr();
  EXPECT_FALSE(Page::ReturnToHeap(&words[1]));
  const std::string report = testing::internal::GetCapturedStderr();
  EXPECT_NE(std::string::npos, report.find("platform/include/platform/List:477\n")) << report;
}

TEST_F(ListOfNumbers, PageWithoutItsHandleIsReportedOnceAndTheOthersAreFreed) {
  {
    Numbers doomed{sp<IHeap>(&heap)};
    for (int i = 0; i < 13; ++i) ASSERT_EQ(Result::Succeeded, doomed.Append(i));
    ASSERT_EQ(3U, heap.given.size());
    IHeap* const none = nullptr;
    std::memcpy(heap.given[1], static_cast<const void*>(&none), sizeof(none));
    testing::internal::CaptureStderr();
  }
  const std::string report = testing::internal::GetCapturedStderr();
  EXPECT_EQ(1U, timesIn(report, "platform/include/platform/List:477\n")) << report;
  EXPECT_EQ(1U, timesIn(report, "platform/include/platform/List:")) << report;
  EXPECT_EQ((std::vector<void*>{heap.given[2], heap.given[0]}), heap.returned);
  EXPECT_EQ(1 + 1, heap.references) << "the fixture's list holds one, and the lost handle was never dropped";
  std::free(heap.given[1]);
}

TEST_F(ListOfNumbers, PageThatItsHeapTakesBackIsReportedAsReturned) {
  using Page = ListElementPage<int, 4>;
  sp<IHeap> handle(&heap);
  void* const memory = Page::operator new(sizeof(Page), handle);
  ASSERT_NE(nullptr, memory);
  EXPECT_TRUE(Page::ReturnToHeap(memory));
  EXPECT_EQ(heap.given, heap.returned);
}

TEST(List, DestroyingNineElementsFreesTwoPagesTheLastOneFirst) {
  CountingHeap heap;
  {
    List<Counted, 4> list{sp<IHeap>(&heap)};
    for (int i = 0; i < 9; ++i) list.Append(Counted(i));
    EXPECT_EQ(12, Counted::alive) << "three pages of four";
  }
  EXPECT_EQ(2U, heap.returned.size());
  EXPECT_TRUE(std::equal(heap.given.rbegin(), heap.given.rend(), heap.returned.begin()));
  EXPECT_EQ(0, Counted::alive) << "every record destroyed once";
  EXPECT_EQ(0, heap.references);
}

namespace {

// Writes down the order in which elements go.
struct Mortal {
  Mortal() = default;
  explicit Mortal(char letter) : name(letter) {}
  Mortal(const Mortal&) = default;
  Mortal& operator=(const Mortal&) = default;
  ~Mortal() {
    if (watched && name != 0) deaths += name;
  }
  char name = 0;
  static bool watched;
  static std::string deaths;
};
bool Mortal::watched = false;
std::string Mortal::deaths;

}  // namespace

TEST(List, ElementsGoAfterThePagesBehindThemAndLastFirst) {
  CountingHeap heap;
  {
    List<Mortal, 4> list{sp<IHeap>(&heap)};
    for (const char letter : {'a', 'b', 'c', 'd', 'e', 'f'}) list.Append(Mortal(letter));
    Mortal::watched = true;
  }
  Mortal::watched = false;
  EXPECT_EQ("fedcba", Mortal::deaths);
}

namespace {

// Writes down what is given back to it, and when one of the handles on it goes that the list holds; the
// platform may have some of its own for a moment.
class RecordingHeap : public CountingHeap {
 public:
  Result::Code Release(void* block) override {
    const auto place = std::find(given.begin(), given.end(), block) - given.begin();
    events += "page " + std::to_string(place + 2) + ", ";
    return CountingHeap::Release(block);
  }
  void DropReference() override {
    CountingHeap::DropReference();
    if (references >= fewest) return;
    fewest = references;
    events += std::to_string(references) + " left, ";
  }

  int fewest = 0;
  std::string events;
};

}  // namespace

TEST(List, PagesGoLastFirstEachBeforeItsOwnHandleOfTheHeapAndTheListsHandleGoesLast) {
  RecordingHeap heap;
  {
    Numbers list{sp<IHeap>(&heap)};
    for (int i = 0; i < 13; ++i) list.Append(i);
    ASSERT_EQ(4, heap.references) << "the list's handle and one in each of three pages";
    heap.fewest = heap.references;
  }
  EXPECT_EQ("page 4, 3 left, page 3, 2 left, page 2, 1 left, 0 left, ", heap.events);
}

TEST(List, NewPageHoldsDefaultElements) {
  const ListElementPage<Velm::eSNMPVersion, 4> versions;
  for (const Velm::eSNMPVersion version : versions.elements) EXPECT_EQ(0U, version);
  const ListElementPage<Velm::TrapRegistration, 4> registrations;
  for (const Velm::TrapRegistration& registration : registrations.elements) {
    EXPECT_EQ(0U, registration.getPort());
    EXPECT_EQ(0U, registration.getTransport());
    EXPECT_TRUE(registration.getTrapID() == TarnAbstract::GUID());
  }
  EXPECT_EQ(nullptr, registrations.next);
}

namespace {

struct Assigned {
  Assigned() { ++constructed; }
  Assigned(const Assigned&) = default;
  Assigned& operator=(const Assigned&) {
    ++assigned;
    return *this;
  }
  ~Assigned() = default;
  static int constructed;
  static int assigned;
};
int Assigned::constructed = 0;
int Assigned::assigned = 0;

}  // namespace

TEST(List, NewPageResetsEachOfItsRecordsOnceMore) {
  const ListElementPage<Assigned, 4> page;
  EXPECT_EQ(4 + 4, Assigned::constructed) << "four records, and a fresh one to reset each";
  EXPECT_EQ(4, Assigned::assigned);
}

TEST(List, AnswersAsAVectorDoesInOrderAndAtRandom) {
  std::mt19937 random(20020429);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same run every time
  CountingHeap heap;
  std::vector<std::size_t> sizes(70);
  std::iota(sizes.begin(), sizes.end(), 1U);
  sizes.insert(sizes.end(), {100U, 1001U, 10000U});
  for (const std::size_t size : sizes) {
    List<unsigned int, 4> list{sp<IHeap>(&heap)};
    std::vector<unsigned int> oracle(size);
    for (unsigned int& value : oracle) {
      value = random();
      ASSERT_EQ(Result::Succeeded, list.Append(value));
    }
    ASSERT_EQ(size, list.Size());
    std::vector<unsigned int> indices(size);
    std::iota(indices.begin(), indices.end(), 0U);
    for (int round = 0; round < 2; ++round) {
      for (const unsigned int index : indices) {
        unsigned int value = 0;
        ASSERT_EQ(Result::Succeeded, list.Item(index, value));
        ASSERT_EQ(oracle[index], value) << "index " << index << " of " << size;
      }
      std::shuffle(indices.begin(), indices.end(), random);
    }
  }
  EXPECT_EQ(heap.given.size(), heap.returned.size());
}

TEST(TrapRegistration, HasPortAddressIdentifierAndTransportBehindItsTablePointer) {
  struct Raw {
    void* table;
    std::uint32_t port;
    TarnAbstract::String address;
    TarnAbstract::GUID id;
    std::uint32_t transport;
  };
  Velm::TrapRegistration registration;
  registration.setPort(162);
  registration.setTransport(static_cast<Velm::eTransportType>(2));
  registration.setIPAddress(TarnAbstract::String("192.0.2.7"));
  ASSERT_EQ(sizeof(Raw), sizeof(registration));
  const Raw& memory = reinterpret_cast<const Raw&>(registration);
  EXPECT_EQ(162U, memory.port);
  EXPECT_EQ(2U, memory.transport);
  EXPECT_TRUE(memory.id == TarnAbstract::GUID());
}

namespace {

// How many texts share these characters. The number lies in front of them.
unsigned int HoldersOf(const String& filled) {
  return reinterpret_cast<const std::atomic<unsigned int>*>(StringAccess::Text(filled))[-1];
}

}  // namespace

TEST(ListOfTrapRegistrations, LetsGoOfEachSharedAddressWhenItGoes) {
  std::vector<String> addresses(9);
  for (String& address : addresses) {
    StringAccess::Assign(address, "192.0.2.7");
    ASSERT_EQ(1U, HoldersOf(address));
  }
  CountingHeap heap;
  {
    List<Velm::TrapRegistration, 4> list{sp<IHeap>(&heap)};
    for (const String& address : addresses) {
      Velm::TrapRegistration registration;
      registration.setIPAddress(address);
      ASSERT_EQ(Result::Succeeded, list.Append(registration));
    }
    for (unsigned int index = 0; index < addresses.size(); ++index) {
      EXPECT_EQ(2U, HoldersOf(addresses[index])) << "besides the test, the record at index " << index;
      Velm::TrapRegistration registration;
      ASSERT_EQ(Result::Succeeded, list.Item(index, registration));
      EXPECT_EQ(StringAccess::Text(addresses[index]), StringAccess::Text(registration.getIPAddress()));
      EXPECT_EQ(3U, HoldersOf(addresses[index])) << "and the copy of the record at index " << index;
    }
  }
  EXPECT_EQ(2U, heap.returned.size());
  for (const String& address : addresses) EXPECT_EQ(1U, HoldersOf(address));
}
