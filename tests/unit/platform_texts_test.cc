#include "utility/platform_texts.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "libtarn/string_access.h"

using TarnAbstract::GUID;
using TarnAbstract::String;

namespace {

const GUID Zero;

GUID parse(std::string text) { return cStringToGUID(text.data()); }

}  // namespace

TEST(CStringToGUID, ReadsThreeGroupsTheFirstBeingTheFirstWord) {
  EXPECT_EQ(GUID(0x01234567, 0x89abcdef, 0x0000000f), parse("01234567-89abcdef-0000000f"));
}

TEST(CStringToGUID, AcceptsUpperCase) {
  EXPECT_EQ(GUID(0xDEADBEEF, 0xABCDEF01, 0xFFFFFFFF), parse("DEADBEEF-AbCdEf01-FFFFFFFF"));
}

TEST(CStringToGUID, AnythingElseIsTheZeroIdentifier) {
  for (const char* text :
       {"", "1", "01234567-89abcdef-0000000", "01234567-89abcdef-0000000f0", "01234567+89abcdef-0000000f",
        "01234567-89abcdef+0000000f", "0123456g-89abcdef-0000000f", "01234567-89abcdeg-0000000f",
        "01234567-89abcdef-0000000g", " 1234567-89abcdef-0000000f", "-1234567-89abcdef-0000000f",
        "+1234567-89abcdef-0000000f", "0x234567-89abcdef-0000000f", "01234567-89abcdef-0000000f\n",
        "0123456-789abcdef-0000000f", "0123456789abcdef0000000f--"}) {
    EXPECT_EQ(Zero, parse(text)) << text;
  }
}

TEST(CStringToGUID, NoTextIsTheZeroIdentifier) { EXPECT_EQ(Zero, cStringToGUID(nullptr)); }

TEST(GuidToCString, WritesLowerCaseWithLeadingZeros) {
  EXPECT_STREQ("01234567-89abcdef-0000000f", guidToCString(GUID(0x01234567, 0x89ABCDEF, 0xF)));
  EXPECT_STREQ("00000000-00000000-00000000", guidToCString(Zero));
}

TEST(GuidToCString, OfAnotherThreadLeavesThisThreadsText) {
  const char* const text = guidToCString(GUID(1, 2, 3));
  std::thread([] { guidToCString(GUID(4, 5, 6)); }).join();
  EXPECT_STREQ("00000001-00000002-00000003", text);
}

TEST(GuidToCString, IsReadBackUnchanged) {
  const GUID identifier(0x80000000, 0x7FFFFFFF, 0x12345678);
  EXPECT_EQ(identifier, parse(guidToCString(identifier)));
}

TEST(TarnStringToCString, IsTheStringsOwnText) {
  const char text[] = "public";
  EXPECT_EQ(text, tarnStringToCString(String(text)));
  String filled;
  TarnAbstract::StringAccess::Assign(filled, "private");
  EXPECT_STREQ("private", tarnStringToCString(filled));
}

TEST(TarnStringToCString, IsNeverNull) { EXPECT_STREQ("", tarnStringToCString(String(nullptr))); }
