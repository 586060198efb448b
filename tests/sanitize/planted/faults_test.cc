// A program of unit tests that all hold, and of which one has a fault.
#include <gtest/gtest.h>
#include <pthread.h>

#include <cstdlib>

namespace {

int* volatile shared = nullptr;

void* count(void*) {
  for (int i = 0; i < 1000; ++i) *shared = *shared + 1;
  return nullptr;
}

}  // namespace

TEST(Planted, None) {}

TEST(Planted, Leak) {
  char* volatile lost = static_cast<char*>(std::malloc(77));
  lost = nullptr;
  EXPECT_EQ(nullptr, lost);
}

TEST(Planted, Overflow) {
  char* volatile block = static_cast<char*>(std::malloc(8));
  block[8] = 'x';
  std::free(block);
}

TEST(Planted, Race) {
  static int counted = 0;
  shared = &counted;
  pthread_t threads[2];
  for (pthread_t& thread : threads) pthread_create(&thread, nullptr, count, nullptr);
  for (const pthread_t thread : threads) pthread_join(thread, nullptr);
}
