// What reports say: in a first half year no two weeks in a row alike, and after a reload the same as before it.
#include <gtest/gtest.h>

#include "core/view_find.h"
#include "play/filmed_careers.h"
#include "shell/shown_json.h"

namespace backbeat {
namespace {

/// What leads the report: the headline of its poster, or the story of the week.
std::string headlineOf(const View& report) {
  for (const Block& block : report.blocks) {
    if (const auto* poster = std::get_if<Poster>(&block)) return poster->title;
    if (const auto* text = std::get_if<Text>(&block); text && text->style == Text::Style::lead) return text->text;
  }
  return {};
}

std::vector<std::string> headlinesOf(const PlayedCareer& played) {
  std::vector<std::string> headlines;
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : played.events) {
    if (event.action.id == "closeButton") headlines.push_back(headlineOf(career.session().shown().view));
    career.play(event);
  }
  return headlines;
}

/// What the report on the glass tells, but for the week's chances, which go with the launch.
std::string toldBy(const Session& session) {
  Shown told;
  told.view = session.shown().view;
  std::vector<Block>& blocks = told.view.blocks;
  blocks.erase(std::find_if(blocks.begin(), blocks.end(),
                            [](const Block& block) {
                              const auto* heading = std::get_if<Heading>(&block);
                              return heading && heading->text.starts_with("Chances");
                            }),
               blocks.end());
  return shownAsJson(session.navigator(), told);
}

/// Launches a copy of the career whose report is open.
void expectToldAgain(const Session& session, const MemoryStore& store, Date now) {
  MemoryStore copy;
  copy.rows = store.rows;
  QuietPlatform platform;
  {
    Session again(copy, platform, 1, now);
    EXPECT_EQ(again.shown().segue, "goToWeeklySummary");
    EXPECT_EQ(toldBy(again), toldBy(session));
    EXPECT_EQ(careerHash(again.game().state), careerHash(session.game().state)) << "nothing is settled twice";
    again.press(now, std::to_string(again.shown().key), {"closeButton", ""});
    EXPECT_NE(again.shown().segue, "goToWeeklySummary");
  }
  EXPECT_NE(Session(copy, platform, 2, now).shown().segue, "goToWeeklySummary") << "it was closed";
}

TEST(Reports, WhatIsOpenAtAReloadIsToldAgain) {
  constexpr int64_t everyWeeks = 17;
  for (const GoldenCareer& golden : goldenCareers()) {
    SCOPED_TRACE(golden.name);
    const PlayedCareer& played = goldenCareer(golden.name);
    MemoryStore store;
    store.rows = played.beginning;
    QuietPlatform platform;
    TraceRecorder career(store, platform);
    for (const TraceEvent& event : played.events) {
      career.play(event);
      const Session& session = career.session();
      const int64_t week = session.game().state.weekNumberForTracking;
      if (event.action.id != "endTheWeekButton" || week % everyWeeks != 0) continue;
      SCOPED_TRACE(week);
      expectToldAgain(session, store, Date{static_cast<double>(event.unixMilliseconds) / 1000});
    }
  }
}

TEST(Reports, NoTwoInARowTellTheSame) {
  for (const GoldenCareer& filmed : filmedCareers()) {
    SCOPED_TRACE(filmed.name);
    const PlayedCareer career = played(filmed);
    EXPECT_EQ(career.problems, std::vector<std::string>{});
    const std::vector<std::string> headlines = headlinesOf(career);
    ASSERT_EQ(headlines.size(), 30u);
    for (size_t week = 1; week < headlines.size(); ++week) {
      EXPECT_NE(headlines[week - 1], headlines[week]) << "week " << week + 1;
    }
  }
}

}  // namespace
}  // namespace backbeat
