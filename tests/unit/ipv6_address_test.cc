#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "utility/ValidateIPv6address.h"

namespace {

using Groups = std::vector<std::string>;

const Groups Zeros(8, "0");

Groups expand(const std::string& address, bool valid) {
  Groups groups;
  EXPECT_EQ(valid, ValidateIPv6address().convertToFullAddress(address, groups)) << address;
  return groups;
}

}  // namespace

TEST(ConvertToFullAddress, ExpandsTheShorthand) {
  EXPECT_EQ((Groups{"2001", "db8", "0", "0", "0", "0", "0", "10"}), expand("2001:db8::10", true));
  EXPECT_EQ((Groups{"fe80", "0", "0", "0", "0", "0", "0", "1"}), expand("fe80::1", true));
  EXPECT_EQ((Groups{"2001", "db8", "0", "0", "0", "0", "0", "0"}), expand("2001:db8::", true));
  EXPECT_EQ(Zeros, expand("::", true));
}

TEST(ConvertToFullAddress, GivesLowerCaseWithoutLeadingZeros) {
  EXPECT_EQ((Groups{"2001", "db8", "a", "0", "abcd", "ef", "f", "1000"}),
            expand("2001:0DB8:000A:0000:ABCD:00EF:F:1000", true));
}

TEST(ConvertToFullAddress, UnderstandsEmbeddedIpv4) {
  EXPECT_EQ((Groups{"0", "0", "0", "0", "0", "ffff", "c000", "201"}), expand("::ffff:192.0.2.1", true));
}

TEST(ConvertToFullAddress, DropsTheZone) {
  EXPECT_EQ((Groups{"fe80", "0", "0", "0", "0", "0", "0", "1"}), expand("fe80::1%eth0", true));
}

TEST(ConvertToFullAddress, AnythingElseIsEightZeros) {
  for (const char* text :
       {"", "none", "10.20.0.1", "2001:db8::10/64", " fe80::1", "fe80::1 ", "1:2:3:4:5:6:7",
        "1:2:3:4:5:6:7:8:9", "::1::", "12345::", "g::", "%eth0", "\"::1\""}) {
    EXPECT_EQ(Zeros, expand(text, false)) << text;
  }
}

TEST(ConvertToFullAddress, WhatStandsBehindANulCounts) {
  EXPECT_EQ(Zeros, expand(std::string("fe80::1\0x", 9), false));
}

TEST(ConvertToFullAddress, AppendsBehindWhatTheListHolds) {
  Groups groups = {"first"};
  ValidateIPv6address().convertToFullAddress("::1", groups);
  EXPECT_EQ((Groups{"first", "0", "0", "0", "0", "0", "0", "0", "1"}), groups);
}
