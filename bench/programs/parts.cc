// C++ parts of the product, each with what it is set beside; Google Benchmark runs their repetitions in
// random turn.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bare.h"
#include "platform/List.h"
#include "trace_log.h"
#include "utility/Runtime.h"
#include "utility/platform_texts.h"

namespace {

constexpr const char* Log = "/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log";

void TraceLine(benchmark::State& state) {
  for (auto _ : state) trace("Entering is_ipv6_enabled");
}

void IdentifierText(benchmark::State& state) {
  TarnAbstract::GUID identifier(0x01234567, 0x89abcdef, 3);
  for (auto _ : state) {
    benchmark::DoNotOptimize(identifier);
    benchmark::DoNotOptimize(guidToCString(identifier));
  }
}

void BareLine(benchmark::State& state) {
  const std::string line = traceLine("TRACE", "Entering is_ipv6_enabled", "");
  for (auto _ : state) bare::appendLine(Log, line.data(), line.size());
}

// The text of a line by itself: what a trace line costs besides its system calls.
void TraceText(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(traceLine("TRACE", "Entering is_ipv6_enabled", ""));
}

void CommandByRuntime(benchmark::State& state) {
  for (auto _ : state) {
    std::string output;
    int waitStatus = 0;
    if (!Runtime::getInstance()->execute("/bin/true", output, waitStatus)) state.SkipWithError("/bin/true");
  }
}

void CommandBare(benchmark::State& state) {
  char path[] = "/bin/true";
  char* words[] = {path, nullptr};
  for (auto _ : state) {
    if (bare::run(words) != 0) state.SkipWithError("/bin/true");
  }
}

using PagedList = TarnAbstract::List<int, 4>;

unsigned int sizeOf(const benchmark::State& state) { return static_cast<unsigned int>(state.range(0)); }

TarnAbstract::sp<TarnAbstract::IHeap> heap() {
  return TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap();
}

void ListAppend(benchmark::State& state) {
  for (auto _ : state) {
    PagedList list(heap());
    for (unsigned int index = 0; index < sizeOf(state); ++index) list.Append(static_cast<int>(index));
    benchmark::DoNotOptimize(list.Size());
  }
}

void DequeAppend(benchmark::State& state) {
  for (auto _ : state) {
    std::deque<int> deque;
    for (unsigned int index = 0; index < sizeOf(state); ++index) deque.push_back(static_cast<int>(index));
    benchmark::DoNotOptimize(deque.size());
  }
}

// What of the appending is the heap's: a block for each page behind the first four elements.
void ListBlocks(benchmark::State& state) {
  const unsigned int blocks = (sizeOf(state) - 1) / 4;
  std::vector<void*> taken(blocks);
  const TarnAbstract::sp<TarnAbstract::IHeap> from = heap();
  using Page = TarnAbstract::ListElementPage<int, 4>;
  for (auto _ : state) {
    for (void*& block : taken) TarnAbstract::TarnMemoryMgmt::Alloc_and_Link(from, sizeof(Page), 4, block);
    for (void* block : taken) TarnAbstract::TarnMemoryMgmt::UnLink_and_Free(block);
  }
}

// The same order for both.
std::vector<unsigned int> indices(unsigned int size, bool shuffled) {
  std::vector<unsigned int> order(size);
  for (unsigned int index = 0; index < size; ++index) order[index] = index;
  std::mt19937 generator(1);
  if (shuffled) std::shuffle(order.begin(), order.end(), generator);
  return order;
}

void readList(benchmark::State& state, bool shuffled) {
  const std::vector<unsigned int> order = indices(sizeOf(state), shuffled);
  PagedList list(heap());
  for (unsigned int index = 0; index < sizeOf(state); ++index) list.Append(static_cast<int>(index));
  for (auto _ : state) {
    int sum = 0;
    for (const unsigned int index : order) {
      int element = 0;
      list.Item(index, element);
      sum += element;
    }
    benchmark::DoNotOptimize(sum);
  }
}

// Copies and checks the index, too, as the list does.
void readDeque(benchmark::State& state, bool shuffled) {
  const std::vector<unsigned int> order = indices(sizeOf(state), shuffled);
  std::deque<int> deque;
  for (unsigned int index = 0; index < sizeOf(state); ++index) deque.push_back(static_cast<int>(index));
  for (auto _ : state) {
    int sum = 0;
    for (const unsigned int index : order) sum += index < deque.size() ? deque[index] : 0;
    benchmark::DoNotOptimize(sum);
  }
}

void ListInOrder(benchmark::State& state) { readList(state, false); }
void DequeInOrder(benchmark::State& state) { readDeque(state, false); }
void ListShuffled(benchmark::State& state) { readList(state, true); }
void DequeShuffled(benchmark::State& state) { readDeque(state, true); }

BENCHMARK(IdentifierText);
BENCHMARK(TraceLine);
BENCHMARK(BareLine);
BENCHMARK(TraceText);
BENCHMARK(CommandByRuntime)->UseRealTime();
BENCHMARK(CommandBare)->UseRealTime();
#define SIZES Arg(4)->Arg(20)->Arg(100)->Arg(1000)->Arg(10000)
BENCHMARK(ListAppend)->SIZES;
BENCHMARK(DequeAppend)->SIZES;
BENCHMARK(ListBlocks)->Arg(10000);
BENCHMARK(ListInOrder)->SIZES;
BENCHMARK(DequeInOrder)->SIZES;
BENCHMARK(ListShuffled)->SIZES;
BENCHMARK(DequeShuffled)->SIZES;

// Counts what a list takes; it has nothing to give.
class CountingHeap : public TarnAbstract::IHeap {
 public:
  void TakeReference() override {}
  void DropReference() override {}
  TarnAbstract::Result::Code Allocate(unsigned int, unsigned int, void*&) override {
    ++blocks;
    return TarnAbstract::Result::MemoryAllocationFailure;
  }
  TarnAbstract::Result::Code Release(void*) override { return TarnAbstract::Result::Succeeded; }
  int blocks = 0;
};

// For how many blocks a list asks to take so many elements.
int printAllocations(int elements) {
  CountingHeap counting;
  PagedList list{TarnAbstract::sp<TarnAbstract::IHeap>(&counting)};
  for (int element = 0; element < elements; ++element) list.Append(element);
  std::printf("%d\n", counting.blocks);
  return 0;
}

// A process that has so much memory in use.
std::unique_ptr<char[]> occupyOneGibibyte() {
  constexpr std::size_t Size = std::size_t{1} << 30U;
  std::unique_ptr<char[]> memory(new char[Size]);
  std::memset(memory.get(), 1, Size);
  benchmark::DoNotOptimize(memory.get());
  return memory;
}

}  // namespace

// parts allocations ELEMENTS | parts [large] OPTION...: the options are Google Benchmark's.
int main(int count, char** arguments) {
  std::unique_ptr<char[]> memory;
  if (count == 3 && std::strcmp(arguments[1], "allocations") == 0) {
    return printAllocations(std::atoi(arguments[2]));
  }
  if (count > 1 && std::strcmp(arguments[1], "large") == 0) {
    memory = occupyOneGibibyte();
    --count;
    ++arguments;
  }
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
}
