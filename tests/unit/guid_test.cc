#include "platform/GUID.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

using TarnAbstract::GUID;

namespace {

using Words = std::vector<std::uint32_t>;

// As the closed libraries see it.
Words wordsInMemory(const GUID& identifier) {
  Words words(3);
  std::memcpy(words.data(), static_cast<const void*>(&identifier), sizeof(identifier));
  return words;
}

}  // namespace

static_assert(sizeof(GUID) == 3 * sizeof(std::uint32_t), "three words and nothing else");

TEST(GUID, CopyHasTheThreeWordsInOrder) {
  const GUID identifier(0x01234567, 0x89abcdef, 0xfedcba98);
  const GUID copy(identifier);  // NOLINT(performance-unnecessary-copy-initialization): the copy is tested
  EXPECT_EQ((Words{0x01234567, 0x89abcdef, 0xfedcba98}), wordsInMemory(copy));
  EXPECT_EQ(wordsInMemory(identifier), wordsInMemory(copy));
}

TEST(GUID, AssignmentReplacesTheThreeWordsInOrder) {
  GUID identifier(1, 2, 3);
  const GUID other(0x01234567, 0x89abcdef, 0xfedcba98);
  identifier = other;
  EXPECT_EQ((Words{0x01234567, 0x89abcdef, 0xfedcba98}), wordsInMemory(identifier));
  EXPECT_EQ((Words{0x01234567, 0x89abcdef, 0xfedcba98}), wordsInMemory(other));
}

TEST(GUID, CopiesAreOnTheirOwn) {
  GUID identifier(1, 2, 3);
  const GUID copy(identifier);
  identifier = GUID();
  EXPECT_EQ((Words{1, 2, 3}), wordsInMemory(copy));
  EXPECT_EQ((Words{0, 0, 0}), wordsInMemory(identifier));
}
