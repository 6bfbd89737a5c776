#include "turn/week_story.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

constexpr double strongChange = 0.25;
constexpr double mostOfAll = 0.7;
constexpr int64_t longRun = 4;  ///< weeks in a row

/// What the sentences choose by.
struct Facts {
  int64_t songsOut = 0;
  int64_t songsPlaying = 0;
  int64_t silencedNow = 0;
  int64_t waiting = 0;
  std::string waitingTitle;
  std::string offChart;  ///< a title that left the chart this week
  std::string onChart;
  int64_t streams = 0;
  int64_t streamsBefore = 0;
  int64_t rising = 0;   ///< weeks in a row with more listeners
  int64_t falling = 0;  ///< and with fewer
};

std::string quoted(const std::string& title) { return "“" + title + "”"; }

CalendarWeek weekBefore(CalendarWeek week) {
  return week.week > 1 ? CalendarWeek{week.week - 1, week.year} : CalendarWeek{52, week.year - 1};
}

int64_t streamsOf(std::span<const WeeklySongListens> rows) {
  int64_t sum = 0;
  for (const WeeklySongListens& row : rows) sum = add(sum, row.songListens);
  return sum;
}

void countSongs(const GameState& state, Facts& facts) {
  const RecordList<Song>& songs = state.saveAllSongList;
  const std::vector<uint32_t> awake = songs.awake();
  facts.songsOut = static_cast<int64_t>(songs.size() - awake.size());
  for (const uint32_t i : awake) {
    const Song& song = songs[i];
    if (!song.isReleased) {
      ++facts.waiting;
      facts.waitingTitle = song.title;
      continue;
    }
    ++facts.songsOut;
    const double life = remainingLife(state, song);
    if (life > 0) ++facts.songsPlaying;
    if (!(life > 0) && life > -1) ++facts.silencedNow;
    if (song.chartRanking > 0) facts.onChart = song.title;
  }
}

void countRuns(const std::vector<int64_t>& listeners, Facts& facts) {
  for (size_t i = listeners.size(); i-- > 1 && listeners[i] > listeners[i - 1];) ++facts.rising;
  for (size_t i = listeners.size(); i-- > 1 && listeners[i] < listeners[i - 1];) ++facts.falling;
}

Facts factsOf(const Game& game, const WeeklyReport& report) {
  const GameState& state = game.state;
  Facts facts;
  countSongs(state, facts);
  countRuns(state.monthlyListenerData, facts);
  facts.streams = streamsOf(report.weeklySongListens);
  facts.streamsBefore = streamsOf(rowsOfWeek(state.saveAllWeeklySongListens, weekBefore(report.week)));
  for (const MilestoneSnapshot::SongStanding& song : game.turn.before.songs) {
    for (const uint32_t position : state.saveAllBillboardSongList.historyOf(song.songId)) {
      const BillboardSong& row = state.saveAllBillboardSongList[position];
      if (song.wasOnChart && !row.isOnCharts) facts.offChart = row.songTitle;
    }
  }
  return facts;
}

std::string beforeAnySong(const GameState& state, const Facts& facts) {
  if (facts.waiting > 0)
    return quoted(facts.waitingTitle) + " lies in the drawer. Release it, and the world can hear it.";
  if (state.weeklyJobIncome > 0)
    return "You worked, you got paid, and nobody has heard you yet. A song would change that.";
  return "A week without a song. Everything begins with the first one.";
}

std::string afterTheLastSong(const Game& game, const Facts& facts) {
  const int64_t change = game.launch.weeklyFanChange;
  if (facts.silencedNow > 0) return "The last of your songs has fallen silent. It is quiet without music.";
  if (facts.waiting > 0)
    return "Nothing of yours is playing, while " + quoted(facts.waitingTitle) + " waits for its release.";
  if (change > 0) {
    return "Nothing of yours is playing any more, yet word still travels: " + counted(change, "new listener") + ".";
  }
  if (change < 0) {
    return "Nothing of yours is playing, and " + counted(-change, "listener") +
           " moved on. A new song brings them back.";
  }
  return "Silence: every song of yours has had its time. Write the next one.";
}

std::string percentOf(double share) { return std::to_string(truncate(std::round(share * 100))) + "%"; }

std::string whilePlaying(const WeeklyReport& report, const Facts& facts) {
  const std::string streams = counted(facts.streams, "stream");
  const std::string top = report.weeklySongListens.empty() ? "" : quoted(report.weeklySongListens.front().songTitle);
  if (facts.streams == 0) return "Your music is out there, and nobody pressed play this week.";
  if (!facts.offChart.empty())
    return quoted(facts.offChart) + " has left the chart, with " + streams + " for all your songs.";
  if (facts.silencedNow > 0)
    return "One voice fewer: " + counted(facts.songsPlaying, "song") + " of yours still play, for " + streams + ".";
  if (!facts.onChart.empty()) return quoted(facts.onChart) + " holds on to the chart in a week of " + streams + ".";
  if (facts.streamsBefore == 0) return top + " meets its first listeners: " + streams + ".";
  const double change = shareOf(static_cast<double>(facts.streams), static_cast<double>(facts.streamsBefore)) - 1;
  if (facts.streams > facts.streamsBefore && facts.streamsBefore > 0) {
    const double growth = static_cast<double>(facts.streams) / static_cast<double>(facts.streamsBefore) - 1;
    if (growth >= strongChange)
      return "A lift: " + streams + ", " + percentOf(growth) + " more than last week, led by " + top + ".";
  }
  if (change <= -strongChange) return "Ears move on: " + streams + ", " + percentOf(-change) + " fewer than last week.";
  if (facts.rising >= longRun)
    return "A steady climb: more listeners for " + counted(facts.rising, "week") + " in a row, and " + streams + ".";
  if (facts.falling >= longRun)
    return "Listeners drift away, " + counted(facts.falling, "week") + " in a row now. " + streams + ".";
  const double lead = shareOf(report.weeklySongListens.front().songListens, facts.streams);
  if (facts.songsPlaying > 1 && lead >= mostOfAll)
    return top + " carried the week: " + percentOf(lead) + " of " + streams + ".";
  if (report.totalRevenue < report.totalExpenses) {
    return streams + ", and the week still cost " + currency(report.totalExpenses - report.totalRevenue) +
           " more than it brought.";
  }
  return "A quiet week: " + streams + " from " + counted(facts.songsPlaying, "song") + ".";
}

}  // namespace

std::string weekStory(const Game& game, const WeeklyReport& report) {
  const Facts facts = factsOf(game, report);
  if (facts.songsOut == 0) return beforeAnySong(game.state, facts);
  if (facts.songsPlaying == 0) return afterTheLastSong(game, facts);
  return whilePlaying(report, facts);
}

std::optional<int64_t> streamsTheWeekBefore(const GameState& state, int64_t songId, CalendarWeek reported) {
  for (const WeeklySongListens& row : rowsOfWeek(state.saveAllWeeklySongListens, weekBefore(reported))) {
    if (row.songId == songId) return row.songListens;
  }
  return std::nullopt;
}

}  // namespace backbeat
