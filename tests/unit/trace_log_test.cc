#include "trace_log.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The time is the utility library's own text; the layout around it is the log's.
std::string withoutTime(const std::string& line) {
  const std::size_t begin = line.find('[') + 1;
  return line.substr(0, begin) + line.substr(line.find("]:", begin));
}

}  // namespace

TEST(TraceLine, HasLevelTimeMessageAndExtraInThisOrder) {
  EXPECT_EQ("TRACE[]:Output = :<library-1>\n", withoutTime(traceLine("TRACE", "Output = ", "library-1")));
}

TEST(TraceLine, NamesTheTimeBetweenTheBrackets) {
  const std::string line = traceLine("TRACE", "m", "");
  EXPECT_LT(line.find('[') + 1, line.find("]:"));
}

TEST(TraceLine, HasNothingBetweenTheBracketsOfAnEmptyExtra) {
  EXPECT_EQ("TRACE[]:Entering get_network_hostname:<>\n",
            withoutTime(traceLine("TRACE", "Entering get_network_hostname", "")));
}

TEST(TraceLine, WritesNullForAMissingMessage) {
  EXPECT_EQ("TRACE[]:NULL:<x>\n", withoutTime(traceLine("TRACE", nullptr, "x")));
}

TEST(TraceLine, WritesNullForAMissingExtra) {
  EXPECT_EQ("TRACE[]:m:<NULL>\n", withoutTime(traceLine("TRACE", "m", nullptr)));
}

TEST(TraceLine, KeepsLineEndsOfTheMessage) {
  EXPECT_EQ("TRACE[]:one\ntwo :<Enabled>\n", withoutTime(traceLine("TRACE", "one\ntwo ", "Enabled")));
}

TEST(TraceLine, TakesAnyLengthOfText) {
  const std::string megabyte(1U << 20U, 'x');
  EXPECT_EQ("TRACE[]:m:<" + megabyte + ">\n", withoutTime(traceLine("TRACE", "m", megabyte.c_str())));
}
