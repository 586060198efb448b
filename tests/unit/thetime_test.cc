#include "utility/thetime.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iomanip>
#include <regex>
#include <sstream>
#include <string>
#include <thread>

namespace {

constexpr std::size_t SecondsLength = sizeof("2026-11-21 10:15:30") - 1;

// On a thread of its own, which has no text of an earlier call.
std::string freshTime() {
  std::string text;
  std::thread([&text] { text = thetime(); }).join();
  return text;
}

class InTimeZone {
 public:
  explicit InTimeZone(const char* zone) {
    const char* const former = getenv("TZ");
    if (former != nullptr) former_ = former;
    Set(zone);
  }
  ~InTimeZone() { Set(former_.c_str()); }
  InTimeZone(const InTimeZone&) = delete;
  InTimeZone& operator=(const InTimeZone&) = delete;

 private:
  static void Set(const char* zone) {
    if (*zone == '\0') {
      unsetenv("TZ");
    } else {
      setenv("TZ", zone, 1);
    }
    tzset();
  }
  std::string former_;
};

std::time_t secondOf(const std::string& text) {
  std::tm parts = {};
  parts.tm_isdst = -1;
  std::istringstream(text) >> std::get_time(&parts, "%Y-%m-%d %H:%M:%S");
  return std::mktime(&parts);
}

}  // namespace

TEST(TheTime, IsDateTimeMillisecondsAndZone) {
  const std::string pattern = "[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3} [+-][0-9]{4}";
  EXPECT_TRUE(std::regex_match(thetime(), std::regex(pattern))) << thetime();
}

TEST(TheTime, IsTheCurrentLocalTime) {
  const InTimeZone zone("TST-5:30");
  const std::time_t before = std::time(nullptr);
  const std::string text = freshTime();
  EXPECT_LE(before, secondOf(text)) << text;
  EXPECT_GE(std::time(nullptr), secondOf(text)) << text;
  EXPECT_EQ(" +0530", text.substr(text.size() - 6));
}

TEST(TheTime, GoesOnWithinTheSecondAndIntoTheNext) {
  using Clock = std::chrono::system_clock;
  const auto end = Clock::now() + std::chrono::seconds(60);  // for a machine that has much else to do
  std::string former = thetime();
  int milliseconds = 0;
  int seconds = 0;
  while ((milliseconds <= 100 || seconds < 1) && Clock::now() < end) {
    const std::string text = thetime();
    EXPECT_LE(former, text);
    if (text != former) ++milliseconds;
    if (text.compare(0, SecondsLength, former, 0, SecondsLength) != 0) ++seconds;
    former = text;
  }
  EXPECT_LT(100, milliseconds);
  EXPECT_LE(1, seconds);
}

TEST(TheTime, OfAnotherThreadLeavesThisThreadsText) {
  const char* const text = thetime();
  const std::string copy = text;
  std::this_thread::sleep_for(std::chrono::milliseconds(2));
  EXPECT_NE(copy, freshTime());
  EXPECT_EQ(copy, text);
}
