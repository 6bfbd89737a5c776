#include "shell/native/career_trial.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "shell/session.h"

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

TEST(CareerTrial, AReportThatWasStillOpenIsClosedBeforeTheWeekEnds) {
  MemoryStore store;
  QuietPlatform platform;
  Session session(store, platform, 7, Date());
  const auto press = [&](const std::string& screenKey, Action action) { session.press(Date(), screenKey, action); };
  press(std::to_string(session.shown().key), {"name", "Mira"});
  press(std::to_string(session.shown().key), {"saveButton", ""});
  press("nav", {"endTheWeekButton", ""});
  ASSERT_TRUE(session.shown().modal);
  EXPECT_EQ(trialProblem(rowsOf(session.game().state), Trial::oneWeek, Date()), "");
}

}  // namespace
}  // namespace backbeat
