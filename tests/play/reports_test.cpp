// What the reports of a first half year say: no two weeks in a row alike, and always something to look forward to.
#include <gtest/gtest.h>

#include "core/view_find.h"
#include "play/filmed_careers.h"

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
