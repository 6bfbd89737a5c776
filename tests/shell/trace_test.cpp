#include "shell/trace.h"

#include <gtest/gtest.h>

#include "core/memory_store.h"

namespace backbeat {
namespace {

TEST(Trace, WhatWasPlayedReadsBackAsItWas) {
  using namespace std::string_literals;
  MemoryStore store;
  QuietPlatform platform;
  std::string text;
  TraceRecorder career(store, platform, [&](const std::string& line) { text += line + "\n"; });
  const std::vector<TraceEvent> events = {
      launchEvent(-5, UINT64_MAX),
      actEvent(1, "3", {"name", "Zoë  Falk\n50%\0 "s}),
      actEvent(2, "", {"", ""}),
      launchEvent(3, 0),
      actEvent(4, "nav", {"endTheWeekButton", "%"}),
      purchaseEvent(5, {.product = "energy25", .transaction = "a b%", .free = true}),
      purchaseEvent(6, {PurchaseAnswer::Result::failed, "?", ""})};
  for (const TraceEvent& event : events) career.play(event);

  const Trace trace = readTrace(text + "\n");
  EXPECT_EQ(trace.problem, "");
  ASSERT_EQ(trace.events.size(), events.size());
  for (size_t i = 0; i < events.size(); ++i) EXPECT_EQ(traceLine(trace.events[i]), traceLine(events[i]));
  EXPECT_EQ(trace.events[1].action.value, "Zoë  Falk\n50%\0 "s);
  EXPECT_EQ(trace.events[2].screenKey, "");
  EXPECT_EQ(trace.events[0].seed, UINT64_MAX);
  EXPECT_EQ(trace.events[5].purchase.transaction, "a b%");
}

TEST(Trace, TellsTheLineThatIsNone) {
  const std::string launch = "launch 5 0\n";
  for (const char* line : {"act 1 2 3", "act x 2 3 4", "act 1 2 3 4 5", "act 1 2 %4 %", "act 1 2 %GG %", "dance",
                           "purchase 1 lost energy25 a free", "purchase 1 done energy25 a given",
                           "purchase 1 done energy25 a", "launch -1 0", "launch 99999999999999999999 0"}) {
    EXPECT_EQ(readTrace(launch + "\n" + line).problem.substr(0, 7), "line 3:") << line;
    EXPECT_TRUE(readTrace(launch + line).events.empty());
  }
  EXPECT_NE(readTrace("act 1 2 3 4\n").problem, "");
  EXPECT_NE(readTrace("").problem, "");
}

TEST(Trace, OneThatGoesOnWithAnotherCareerIsNotReplayed) {
  MemoryStore store;
  QuietPlatform platform;
  std::string text;
  TraceRecorder career(store, platform, [&](const std::string& line) { text += line + "\n"; });
  career.noteForeignCareer();
  career.play(launchEvent(0, 1));
  EXPECT_EQ(readTrace(text).problem, "line 1: it goes on with a career that the trace does not hold");
}

}  // namespace
}  // namespace backbeat
