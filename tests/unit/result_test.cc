#include "platform/Result.h"

#include <gtest/gtest.h>

using TarnAbstract::Result;

TEST(Result, ACodeWithTheTopBitIsASuccess) {
  for (const Result::Code code : {0x80000000U, 0x80000001U, 0xFFFFFFFFU}) {
    EXPECT_TRUE(Result::IsSucceeded(code)) << code;
    EXPECT_FALSE(Result::IsFailed(code)) << code;
  }
}

TEST(Result, EveryOtherCodeIsAFailureZeroIncluded) {
  for (const Result::Code code : {0x0U, 0x1U, 0x50040U, 0x7FFFFFFFU}) {
    EXPECT_FALSE(Result::IsSucceeded(code)) << code;
    EXPECT_TRUE(Result::IsFailed(code)) << code;
  }
}

TEST(Result, NamedCodesKeepTheRuleAndDiffer) {
  EXPECT_TRUE(Result::IsSucceeded(Result::Succeeded));
  const Result::Code failures[] = {Result::Failed, Result::ElementNotFound, Result::CapacityOverflow,
                                   Result::MemoryAllocationFailure};
  for (const Result::Code code : failures) EXPECT_TRUE(Result::IsFailed(code)) << code;
  for (const Result::Code& one : failures) {
    for (const Result::Code& other : failures) EXPECT_EQ(&one == &other, one == other);
  }
}
