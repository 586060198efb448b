#include "platform/sp.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/Interface.h"

using TarnAbstract::sp;

namespace {

class Counted : public virtual TarnAbstract::IInterface {
 public:
  void TakeReference() override {
    ++references;
    history += '+';
  }
  void DropReference() override {
    --references;
    history += '-';
  }
  int Answer() const { return 42; }

  int references = 0;
  std::string history;
};

using Handle = sp<Counted>;

}  // namespace

static_assert(sizeof(Handle) == sizeof(Counted*), "a handle is exactly its pointer");

TEST(Handle, StoresThePointerAndNothingElse) {
  Counted object;
  const Handle handle(&object);
  Counted* stored = nullptr;
  std::memcpy(&stored, static_cast<const void*>(&handle), sizeof(stored));
  EXPECT_EQ(&object, stored);
}

TEST(Handle, OfAPointerTakesAReferenceAndDropsItAtItsEnd) {
  Counted object;
  {
    const Handle handle(&object);
    EXPECT_EQ(1, object.references);
  }
  EXPECT_EQ("+-", object.history);
}

TEST(Handle, OfANullPointerIsEmpty) {
  const Handle handle(nullptr);
  EXPECT_FALSE(handle.IsValid());
}

TEST(Handle, CopyTakesAReferenceOfItsOwn) {
  Counted object;
  const Handle handle(&object);
  const Handle copy(handle);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(2, object.references);
  const Handle empty(nullptr);
  const Handle copyOfEmpty(empty);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_FALSE(copyOfEmpty.IsValid());
}

TEST(Handle, AssignmentTakesTheNewReferenceBeforeItDropsTheOld) {
  Counted object;
  Counted other;
  Handle handle(&object);
  const Handle same(&object);
  handle = same;
  EXPECT_EQ("+++-", object.history);
  handle = Handle(&other);
  EXPECT_EQ(1, object.references);
  EXPECT_EQ(1, other.references);
}

TEST(Handle, AssignmentToItselfKeepsTheObject) {
  Counted object;
  Handle handle(&object);
  const Handle& itself = handle;
  handle = itself;
  EXPECT_EQ(1, object.references);
  EXPECT_TRUE(handle.IsValid());
}

TEST(Handle, ReleaseReferenceDropsTheReferenceAndLeavesTheHandleEmpty) {
  Counted object;
  Handle handle(&object);
  handle.ReleaseReference();
  EXPECT_EQ(0, object.references);
  EXPECT_FALSE(handle.IsValid());
}

TEST(Handle, ReleaseReferenceOfAnEmptyHandleDoesNothing) {
  Handle handle(nullptr);
  handle.ReleaseReference();
  EXPECT_FALSE(handle.IsValid());
}

TEST(Handle, EqualsTheEmptyHandleOnlyWhenItsPointerIsNull) {
  Counted object;
  EXPECT_TRUE(Handle(nullptr) == Handle(nullptr));
  EXPECT_FALSE(Handle(&object) == Handle(nullptr));
}

TEST(Handle, EqualityComparesThePointersAndNothingElse) {
  Counted object;
  Counted other;
  EXPECT_TRUE(Handle(&object) == Handle(&object));
  EXPECT_FALSE(Handle(&object) == Handle(&other));
}

TEST(Handle, ArrowGivesTheStoredPointer) {
  Counted object;
  EXPECT_EQ(42, Handle(&object)->Answer());
  EXPECT_EQ(nullptr, Handle(nullptr).operator->());
}
