#include "features/news.h"

#include <optional>

#include "core/money.h"
#include "music/chart.h"

namespace backbeat {

namespace {

using Kind = News::Kind;

std::string quoted(const std::string& title) { return "“" + title + "”"; }

/// The verse's row on the chart; nullptr when it never charted.
const BillboardSong* chartRowOf(const GameState& state, const FeaturedOn& verse) {
  const auto found = state.saveAllBillboardSongList.historyOf(verse.songId + featuredSongOffset);
  return found.empty() ? nullptr : &state.saveAllBillboardSongList[found.front()];
}

void addFirstVerse(const Game& game, std::vector<News>& news) {
  const RecordList<FeaturedOn>& verses = game.state.saveAllFeaturedOnList;
  if (verses.empty() || verses[0].releaseWeek != game.turn.before.absoluteWeek) return;
  const FeaturedOn& verse = verses[0];
  news.push_back({.kind = Kind::first,
                  .rank = 320,
                  .key = "verse",
                  .picture = cover(verse.title),
                  .kicker = "Your first guest verse",
                  .headline = quoted(verse.title) + " is out, with you on it",
                  .text = "A song by " + verse.artistName});
}

bool isNewOnChart(const BillboardSong& row, int64_t week) { return row.weeksOnChart == 1 && row.weekNumber == week; }

bool isNewAtOne(const BillboardSong& row) { return row.weeksAtOne == 1 && row.rankThisWeek == 1; }

/// Whether a verse was on the chart, or at number one, before the week.
struct Before {
  bool onChart = false;
  bool atOne = false;
};

Before chartBefore(const GameState& state, int64_t week) {
  Before before;
  for (const FeaturedOn& verse : state.saveAllFeaturedOnList) {
    const BillboardSong* row = chartRowOf(state, verse);
    if (!row) continue;
    before.onChart = before.onChart || !isNewOnChart(*row, week);
    before.atOne = before.atOne || (row->weeksAtOne > 0 && !isNewAtOne(*row));
  }
  return before;
}

void addChart(const Game& game, std::vector<News>& news) {
  const int64_t week = game.turn.before.absoluteWeek;
  std::optional<Before> before;  // looks at all verses ever, so that only a week that tells of the chart asks
  for (const uint32_t i : game.state.saveAllFeaturedOnList.awake()) {
    const FeaturedOn& verse = game.state.saveAllFeaturedOnList[i];
    const BillboardSong* row = verse.chartRanking > 0 ? chartRowOf(game.state, verse) : nullptr;
    if (!row || !row->isOnCharts || !(isNewAtOne(*row) || isNewOnChart(*row, week))) continue;
    if (!before) before = chartBefore(game.state, week);
    News told{.picture = cover(verse.title),
              .headline = quoted(verse.title) + " by " + verse.artistName,
              .text = "With your verse",
              .figure = std::to_string(row->rankThisWeek)};
    if (isNewAtOne(*row)) {
      told.kind = before->atOne ? Kind::reached : Kind::first;
      told.rank = before->atOne ? 350 : 550;
      told.key = "verse number one";
      told.kicker = before->atOne ? "Number one, as a guest" : "Your first number one as a guest";
      told.headline += " is number one";
      before = Before{.onChart = true, .atOne = true};
    } else {
      told.kind = before->onChart ? Kind::reached : Kind::first;
      told.rank = before->onChart ? 190 : 420;
      told.key = "verse chart entry";
      told.kicker = before->onChart ? "New on the chart" : "Your first guest verse on the chart";
      told.headline += " enters the chart at " + rank(row->rankThisWeek);
      before->onChart = true;
    }
    news.push_back(std::move(told));
  }
}

}  // namespace

void addFeaturesNews(const Game& game, std::vector<News>& news) {
  addFirstVerse(game, news);
  addChart(game, news);
}

}  // namespace backbeat
