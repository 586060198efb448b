// Which broken assumptions are reported at which debug levels. This program has levels of its own in place of
// the platform library's, LOW_LEVEL beside a medium one of 7, and notes the reports itself.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "platform/Debugging.h"
#include "platform/List.h"
#include "platform/MemoryMgmt.h"

using TarnAbstract::IHeap;
using TarnAbstract::List;
using TarnAbstract::ListElementPage;
using TarnAbstract::Result;
using TarnAbstract::sp;
using namespace TarnAbstract::TarnMemoryMgmt;

namespace {

constexpr unsigned int MediumLevel = 7;
constexpr bool HeapFailuresAreReported = LOW_LEVEL <= MediumLevel;

constexpr const char* ListSource = "platform/include/platform/List";
constexpr const char* MemorySource = "platform/include/platform/MemoryMgmt";

struct Report {
  std::string source;
  int line;
};
std::vector<Report> reports;

class EmptyHeap : public virtual IHeap {
 public:
  void TakeReference() override {}
  void DropReference() override {}
  Result::Code Allocate(unsigned int, unsigned int, void*&) override { return Result::CapacityOverflow; }
  Result::Code Release(void*) override { return Result::Succeeded; }
};

// The memory of a list as the management library sees it.
struct RawPage {
  int elements[4];
  RawPage* next;
};
struct RawList {
  IHeap* heap;
  unsigned int count;
  RawPage first;
  RawPage* tail;
};

class DebugLevels : public testing::Test {
 protected:
  DebugLevels() { reports.clear(); }

  void fillFirstPage() {
    for (int i = 0; i < 4; ++i) ASSERT_EQ(Result::Succeeded, list.Append(i));
  }
  // The reports since the test began: those of the memory functions, and behind each the list's when it
  // has one for that.
  static void expectHeapFailure(int lineOfList = 0) {
    if (!HeapFailuresAreReported) {
      EXPECT_TRUE(reports.empty()) << reports.front().source << ':' << reports.front().line;
      return;
    }
    ASSERT_EQ(lineOfList == 0 ? 1U : 2U, reports.size());
    EXPECT_EQ(MemorySource, reports[0].source);
    if (lineOfList == 0) return;
    EXPECT_EQ(ListSource, reports[1].source);
    EXPECT_EQ(lineOfList, reports[1].line);
  }

  EmptyHeap heap;
  List<int, 4> list{sp<IHeap>(&heap)};
  void* wordsOfNoHeap[2] = {nullptr, nullptr};
};

}  // namespace

const unsigned int TarnAbstract::DebugLevels::Low = LOW_LEVEL;
const unsigned int TarnAbstract::DebugLevels::Medium = MediumLevel;

void TarnAbstract::TarnDebugging::AssertionFailure(const char* path, int line) {
  reports.push_back({path, line});
}

TEST_F(DebugLevels, DecideOnThePageThatTheHeapDoesNotGive) {
  fillFirstPage();
  EXPECT_EQ(Result::MemoryAllocationFailure, list.Append(4));
  expectHeapFailure(465);
}

TEST_F(DebugLevels, DecideOnThePageThatTheHeapDoesNotTakeBack) {
  EXPECT_FALSE((ListElementPage<int, 4>::ReturnToHeap(&wordsOfNoHeap[1])));
  expectHeapFailure(477);
}

TEST_F(DebugLevels, DecideOnTheBlockThatTheHeapDoesNotGive) {
  void* block = nullptr;
  EXPECT_EQ(Result::MemoryAllocationFailure, Alloc_and_Link(sp<IHeap>(&heap), 16, 4, block));
  expectHeapFailure();
}

TEST_F(DebugLevels, DecideOnTheBlockThatIsNull) {
  EXPECT_TRUE(Result::IsFailed(UnLink_and_Free(nullptr)));
  expectHeapFailure();
}

TEST_F(DebugLevels, DecideOnTheBlockWithoutAHandleInFront) {
  EXPECT_TRUE(Result::IsFailed(UnLink_and_Free(&wordsOfNoHeap[1])));
  expectHeapFailure();
}

TEST_F(DebugLevels, DoNotDecideOnTheMissingTail) {
  fillFirstPage();
  RawList& memory = reinterpret_cast<RawList&>(list);
  memory.tail = nullptr;
  memory.heap = nullptr;
  EXPECT_EQ(Result::CapacityOverflow, list.Append(4));
  memory.heap = &heap;
  ASSERT_EQ(1U, reports.size());
  EXPECT_EQ(ListSource, reports[0].source);
  EXPECT_EQ(697, reports[0].line);
}
