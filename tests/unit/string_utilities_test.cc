#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "utility/StringUtilities.h"

namespace {

using Pieces = std::vector<std::string>;

Pieces split(const std::string& text, const std::string& delimiter) {
  Pieces pieces;
  StringUtilities::getDelimetedList(pieces, text, delimiter);
  return pieces;
}

}  // namespace

TEST(GetDelimetedList, GivesThePiecesInOrder) {
  EXPECT_EQ((Pieces{"10.1.1.5", "255.255.0.0", "10.1.0.1"}), split("10.1.1.5?255.255.0.0?10.1.0.1", "?"));
}

TEST(GetDelimetedList, ATextWithoutTheDelimiterIsOnePiece) { EXPECT_EQ(Pieces{"none"}, split("none", "?")); }

TEST(GetDelimetedList, AnEmptyTextHasNoPieces) { EXPECT_EQ(Pieces{}, split("", "?")); }

TEST(GetDelimetedList, NeighbouringDelimitersGiveAnEmptyPieceEach) {
  EXPECT_EQ((Pieces{"", "", ""}), split("??", "?"));
  EXPECT_EQ((Pieces{"a", "", "b"}), split("a??b", "?"));
}

TEST(GetDelimetedList, ADelimiterAtAnEndGivesAnEmptyPiece) {
  EXPECT_EQ((Pieces{"", "a"}), split("?a", "?"));
  EXPECT_EQ((Pieces{"a", ""}), split("a?", "?"));
}

TEST(GetDelimetedList, AppendsBehindWhatTheListHolds) {
  Pieces pieces = {"first"};
  StringUtilities::getDelimetedList(pieces, "second third", " ");
  EXPECT_EQ((Pieces{"first", "second", "third"}), pieces);
}

TEST(GetDelimetedList, ADelimiterMayHaveSeveralCharacters) {
  EXPECT_EQ((Pieces{"a", "b:c", ":d"}), split("a::b:c:::d", "::"));
}

TEST(GetDelimetedList, AnEmptyDelimiterOccursNowhere) { EXPECT_EQ(Pieces{"abc"}, split("abc", "")); }

TEST(GetDelimetedList, KeepsNulCharacters) {
  const std::string text("a\0b?c", 5);
  EXPECT_EQ((Pieces{std::string("a\0b", 3), "c"}), split(text, "?"));
}

TEST(ListToString, PutsTheDelimiterBetweenNeighboursOnly) {
  EXPECT_EQ("fe80:0:1", StringUtilities::listToString({"fe80", "0", "1"}, ":"));
}

TEST(ListToString, OnePieceStandsAlone) { EXPECT_EQ("fe80", StringUtilities::listToString({"fe80"}, ":")); }

TEST(ListToString, NoPiecesGiveTheEmptyText) { EXPECT_EQ("", StringUtilities::listToString({}, ":")); }

TEST(ListToString, EmptyPiecesKeepTheirPlace) {
  EXPECT_EQ("??", StringUtilities::listToString({"", "", ""}, "?"));
}
