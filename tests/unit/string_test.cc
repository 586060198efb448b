#include "platform/String.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "libtarn/string_access.h"

using TarnAbstract::String;
using TarnAbstract::StringAccess;

namespace {

struct Words {
  const char* text;
  unsigned int second;
};

Words wordsOf(const String& string) {
  Words words = {};
  std::memcpy(&words, static_cast<const void*>(&string), sizeof(words));
  return words;
}

}  // namespace

static_assert(sizeof(String) == 2 * sizeof(void*), "a pointer and a word");

TEST(String, OfACStringKeepsTheCallersPointerAndTheWordOne) {
  const char text[] = "10.20.0.7";
  const String string(text);
  EXPECT_EQ(text, wordsOf(string).text);
  EXPECT_EQ(1U, wordsOf(string).second);
}

TEST(String, OnAHeapKeepsTheCallersPointerToo) {
  const char text[] = "public";
  const String string(text, TarnAbstract::TarnMemoryMgmt::getSystemTransientObjHeap());
  EXPECT_EQ(text, wordsOf(string).text);
}

TEST(String, WithoutATextIsEmpty) {
  EXPECT_STREQ("", StringAccess::Text(String()));
  EXPECT_STREQ("", StringAccess::Text(String(nullptr)));
}

TEST(String, FilledByAServiceOwnsItsCharacters) {
  String string;
  {
    const std::string passing = "community";
    StringAccess::Assign(string, passing.c_str());
  }
  EXPECT_STREQ("community", StringAccess::Text(string));
}

TEST(String, CopiesOfAFilledOneOutliveIt) {
  String copy;
  {
    String string;
    StringAccess::Assign(string, "192.0.2.1");
    copy = string;
    const String another(string);
    EXPECT_EQ(StringAccess::Text(another), StringAccess::Text(copy));
  }
  EXPECT_STREQ("192.0.2.1", StringAccess::Text(copy));
}

TEST(String, AssignmentToItselfKeepsTheText) {
  String string;
  StringAccess::Assign(string, "x");
  const String& itself = string;
  string = itself;
  EXPECT_STREQ("x", StringAccess::Text(string));
}

TEST(String, CanBeFilledAgain) {
  String string;
  StringAccess::Assign(string, "first");
  StringAccess::Assign(string, StringAccess::Text(string) + 1);
  EXPECT_STREQ("irst", StringAccess::Text(string));
}
