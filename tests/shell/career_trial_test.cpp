#include "shell/native/career_trial.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace backbeat {
namespace {

using testing::HasSubstr;

TEST(CareerTrial, WhateverTheWorkComesToIsOneSentence) {
  const auto endless = [] {
    for (volatile int i = 0;; i = 1 - i) {
    }
    return true;
  };
  EXPECT_EQ(problemOfWork([] { return true; }, 1), "");
  EXPECT_THAT(problemOfWork(endless, 1), HasSubstr("does not come to an end"));
  EXPECT_THAT(problemOfWork([] { return false; }, 1), HasSubstr("cannot be ended"));
  EXPECT_THAT(problemOfWork([]() -> bool { std::abort(); }, 1), HasSubstr("stops on this career"));
}

}  // namespace
}  // namespace backbeat
