#include "turn/week_story.h"

#include <algorithm>
#include <cmath>

#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "music/listeners.h"
#include "music/news.h"
#include "music/song_creation.h"
#include "music/song_release.h"
#include "music/streaming.h"
#include "turn/goals.h"

namespace backbeat {

namespace {

constexpr double strongChange = 0.25;
constexpr double mostOfAll = 0.7;
constexpr int64_t longRun = 4;   ///< weeks in a row
constexpr double savings = 500;  ///< dollars: they pay somebody for a song
constexpr int64_t weeksOfYear = 52;

/// What the sentences choose by.
struct Facts {
  int64_t weeks = 0;  ///< of the calendar so far: whose turn a sentence is
  int64_t songsOut = 0;
  int64_t songsPlaying = 0;
  int64_t silencedNow = 0;
  std::string silenced;  ///< the title of one of these
  int64_t waiting = 0;
  const Song* newestWaiting = nullptr;
  std::string offChart;  ///< a title that left the chart this week
  const Song* onChart = nullptr;
  const Song* freshest = nullptr;   ///< of those out, the one with the most weeks left
  const Song* bestKnown = nullptr;  ///< the most streamed, of all only while none plays
  int64_t streams = 0;
  int64_t streamsBefore = 0;
  bool isBestWeek = false;
  int64_t rising = 0;   ///< weeks in a row with more listeners
  int64_t falling = 0;  ///< and with fewer
};

/// Of an even number of ways to tell the same, the one whose turn it is this week. An empty one has nothing to say:
/// then the first or the second, which always have, speaks for it, so that no two weeks in a row are told alike.
std::string inTurn(const Facts& facts, const std::vector<std::string>& ways) {
  const auto turn = static_cast<size_t>(facts.weeks) % ways.size();
  return ways[turn].empty() ? ways[turn % 2] : ways[turn];
}

std::string quoted(const std::string& title) { return "“" + title + "”"; }

CalendarWeek weekBefore(CalendarWeek week) {
  return week.week > 1 ? CalendarWeek{week.week - 1, week.year} : CalendarWeek{52, week.year - 1};
}

int64_t streamsOf(std::span<const WeeklySongListens> rows) {
  int64_t sum = 0;
  for (const WeeklySongListens& row : rows) sum = add(sum, row.songListens);
  return sum;
}

void rememberBest(const GameState& state, const Song& song, Facts& facts) {
  if (!facts.freshest || remainingLife(state, song) > remainingLife(state, *facts.freshest)) facts.freshest = &song;
  if (!facts.bestKnown || song.totalListen > facts.bestKnown->totalListen) facts.bestKnown = &song;
}

void countSongs(const GameState& state, Facts& facts) {
  const RecordList<Song>& songs = state.saveAllSongList;
  const std::vector<uint32_t> awake = songs.awake();
  facts.songsOut = static_cast<int64_t>(songs.size() - awake.size());
  for (const uint32_t i : awake) {
    const Song& song = songs[i];
    if (!song.isReleased) {
      ++facts.waiting;
      if (!facts.newestWaiting || song.songId > facts.newestWaiting->songId) facts.newestWaiting = &song;
      continue;
    }
    ++facts.songsOut;
    const double life = remainingLife(state, song);
    if (life > 0) ++facts.songsPlaying;
    if (!(life > 0) && life > -1) {
      ++facts.silencedNow;
      facts.silenced = song.title;
    }
    if (song.chartRanking > 0) facts.onChart = &song;
    rememberBest(state, song, facts);
  }
  if (facts.songsPlaying > 0) return;
  // Nothing plays: what is told then is of songs that sleep.
  for (const Song& song : songs) {
    if (song.isReleased) rememberBest(state, song, facts);
  }
}

void countRuns(const std::vector<int64_t>& listeners, Facts& facts) {
  for (size_t i = listeners.size(); i-- > 1 && listeners[i] > listeners[i - 1];) ++facts.rising;
  for (size_t i = listeners.size(); i-- > 1 && listeners[i] < listeners[i - 1];) ++facts.falling;
}

Facts factsOf(const Game& game, const WeeklyReport& report) {
  const GameState& state = game.state;
  Facts facts;
  facts.weeks = state.weekNumberForTracking - 1;
  countSongs(state, facts);
  countRuns(state.monthlyListenerData, facts);
  facts.streams = streamsOf(report.weeklySongListens);
  facts.streamsBefore = streamsOf(rowsOfWeek(state.saveAllWeeklySongListens, weekBefore(report.week)));
  facts.isBestWeek = isBestWeek(game, facts.streams);
  for (const MilestoneSnapshot::SongStanding& song : game.turn.before.songs) {
    for (const uint32_t position : state.saveAllBillboardSongList.historyOf(song.songId)) {
      const BillboardSong& row = state.saveAllBillboardSongList[position];
      if (song.wasOnChart && !row.isOnCharts) facts.offChart = row.songTitle;
    }
  }
  return facts;
}

/// Why there can be no song; empty without debts.
std::string debtOf(const GameState& state) {
  if (state.totalCashAvailable >= 0) return "";
  return "You owe " + currency(-state.totalCashAvailable) + ", and nobody records on credit. " +
         (state.weeklyJobIncome > 0 ? "The job pays it off." : "A job would pay it off.");
}

std::string energyOf(const GameState& state) {
  const std::string energy = std::to_string(state.totalEnergyAvailable);
  if (state.totalCashAvailable < 0)
    return energy + " energy for the new week, and none of it makes a song before the debt is paid.";
  return "A song takes " + std::to_string(songEnergy) + " energy, and the new week brings " + energy + ".";
}

/// Where the account will stand at New Year if nothing changes; empty when it stays as it is.
std::string untilNewYear(const GameState& state) {
  const double net = standingWeeklyNet(state);
  const auto weeks = static_cast<double>(weeksOfYear + 1 - state.weekNumber);
  const double then = state.totalCashAvailable + net * weeks;
  if (net == 0 || weeks < 2) return "";
  return then < 0 ? "If nothing changes, you owe " + currency(-then) + " by New Year."
                  : "At this pace there will be " + currency(then) + " by New Year.";
}

std::string spanOf(int64_t weeks) {
  return weeks < 2 * weeksOfYear ? counted(weeks, "week") : counted(weeks / weeksOfYear, "year");
}

/// How long this life has lasted. The calendar of an heir goes on from the parent's, and the list of their own weeks is
/// a short one.
std::string timeSoFar(const GameState& state, const Facts& facts) {
  if (state.ageAtTakeover == 0) return spanOf(facts.weeks);
  const size_t own = state.monthlyListenerData.size();
  if (own < listenerWeeksRemembered) return spanOf(static_cast<int64_t>(own));
  const int64_t years = state.yearNumber - generationBegan(state);  // begun: the first may have been a week
  return years < 2 ? "More than half a year" : years < 3 ? "More than a year" : "Years";
}

std::string beforeAnySong(const GameState& state, const Facts& facts) {
  const std::string time = timeSoFar(state, facts);
  if (facts.waiting > 0) {
    const std::string song = quoted(facts.newestWaiting->title);
    return inTurn(facts, {song + " lies in the drawer. Release it, and the world can hear it.",
                          time + " in, and " + song + " is still a secret.",
                          facts.waiting > 1 ? counted(facts.waiting, "song") + " are finished, and none of them is out."
                                            : "Nobody can press play yet. RELEASE stands on the song's page.",
                          "A release takes " + std::to_string(releaseCost.energy) +
                              " energy, and the new week brings " + std::to_string(state.totalEnergyAvailable) + ".",
                          "Listeners come with a release, and " + song + " could be the first.", untilNewYear(state)});
  }
  const std::string readers =
      state.followerCount > 0 ? counted(state.followerCount, "follower") + " would like to hear you sing." : "";
  const std::string debt = debtOf(state);
  const std::string account = debt.empty() ? "A first song costs energy, and no money." : debt;
  const std::string listeners = state.totalFans < 10 ? "Ten listeners are the first step, and a song is the way there."
                                                     : counted(state.totalFans, "listener") + " wait for a first song.";
  const std::string putBy =
      state.totalCashAvailable >= savings
          ? currency(state.totalCashAvailable) + " put by. A writer, musicians and a studio can be had for it."
          : "";
  if (state.weeklyJobIncome > 0) {
    const int64_t left = state.weeklyJobContractRemaining;
    return inTurn(facts,
                  {"You worked, you got paid, and nobody has heard you yet. A song would change that.",
                   time + " of work so far, and not one song.",
                   left > 0 ? "The job goes on for " + counted(left, "week") + ". One evening makes a song." : readers,
                   account, energyOf(state), listeners, putBy, untilNewYear(state)});
  }
  return inTurn(facts, {debt.empty() ? "A week without a song. Everything begins with the first one." : debt,
                        time + " in, and the first song is still to come.", readers.empty() ? listeners : readers,
                        energyOf(state), putBy, untilNewYear(state)});
}

std::string afterTheLastSong(const Game& game, const Facts& facts) {
  const GameState& state = game.state;
  const int64_t change = game.launch.weeklyFanChange;
  if (facts.silencedNow > 0) return "The last of your songs has fallen silent. It is quiet without music.";
  const auto silence = truncate(std::floor(-remainingLife(state, *facts.freshest)));
  const std::string best = quoted(facts.bestKnown->title);
  const int64_t found = facts.bestKnown->totalListen;
  const std::string debt = debtOf(state);
  const ListenerGoal goal = nextListenerGoal(state);
  return inTurn(
      facts,
      {debt.empty() ? "Silence: every song of yours has had its time. Write the next one." : debt,
       spanOf(silence + 1) + " without a song of yours playing.",
       facts.waiting > 0
           ? quoted(facts.newestWaiting->title) + " waits for its release, and nothing else of yours is playing."
           : energyOf(state),
       change > 0   ? "Nothing of yours is playing, yet word still travels: " + counted(change, "new listener") + "."
       : change < 0 ? "Nothing of yours is playing, and " + counted(-change, "listener") +
                          " moved on. A new song brings them back."
                    : "Nobody came, nobody left: the world waits for what you do next.",
       found > 0 ? best + " had " + counted(found, "stream") + " in its time. The next one can have more."
                 : best + " was never found by anybody. The next one can be.",
       state.totalFans > 0 ? counted(state.totalFans, "listener") + " would notice a new song." : "",
       untilNewYear(state),
       counted(goal.listeners - state.totalFans, "more listener") + " would make " + withCommas(goal.listeners) +
           ", and they come with a song."});
}

std::string percentOf(double share) { return std::to_string(truncate(std::round(share * 100))) + "%"; }

std::string withoutStreams(const GameState& state, const Facts& facts) {
  const std::string song = quoted(facts.freshest->title);
  const auto left = truncate(std::ceil(remainingLife(state, *facts.freshest)));
  return inTurn(facts,
                {"Your music is out there, and nobody pressed play this week.",
                 song + " has " + counted(left, "week") + " left to be found.",
                 "Nobody came across " + song + " this week. Better skills make a song that is harder to miss.",
                 state.followerCount > 0 ? "A quiet week. On Chirp, " + counted(state.followerCount, "follower") +
                                               " could hear of " + song + "."
                                         : ""});
}

/// Whether the song was streamed before that week.
bool wasHeardBefore(const GameState& state, const WeeklySongListens& week) {
  const RecordList<Song>& songs = state.saveAllSongList;
  const std::vector<uint32_t> awake = songs.awake();
  return std::any_of(awake.begin(), awake.end(), [&](uint32_t i) {
    return songs[i].songId == week.songId && songs[i].totalListen > week.songListens;
  });
}

/// A week that brought more or less than the one before it; empty when it was much the same.
std::string changeOf(const GameState& state, const Facts& facts, const std::string& streams,
                     const WeeklySongListens& first) {
  const std::string top = quoted(first.songTitle);
  if (facts.streamsBefore == 0) {
    if (!wasHeardBefore(state, first)) return top + " meets its first listeners: " + streams + ".";
    return inTurn(facts, {top + " is heard again: " + streams + ".",
                          "After a week of silence somebody pressed play on " + top + ": " + streams + "."});
  }
  const double change = static_cast<double>(facts.streams) / static_cast<double>(facts.streamsBefore) - 1;
  const std::string before = withCommas(facts.streamsBefore);
  if (change >= strongChange) {
    return inTurn(facts, {"A lift: " + streams + ", " + percentOf(change) + " more than last week, led by " + top + ".",
                          "Word gets around: " + streams + ", after " + before + " the week before.",
                          before + " last week, " + streams + " in this one. Most went to " + top + ".",
                          "Up by " + percentOf(change) + ": " + streams + "."});
  }
  if (change <= -strongChange) {
    return inTurn(facts, {"Ears move on: " + streams + ", " + percentOf(-change) + " fewer than last week.",
                          top + (facts.songsPlaying > 1 ? " and the rest" : "") + " had " + before +
                              " last week. This week: " + streams + ".",
                          "Fewer press play: " + streams + ", after " + before + " the week before.",
                          "Down by " + percentOf(-change) + ": " + streams + ". Something new would turn heads."});
  }
  return "";
}

std::string ordinary(const GameState& state, const WeeklyReport& report, const Facts& facts,
                     const std::string& streams) {
  const WeeklySongListens& first = report.weeklySongListens.front();
  const std::string top = quoted(first.songTitle);
  const double lead = shareOf(first.songListens, facts.streams);
  const ListenerGoal goal = nextListenerGoal(state);
  const double loss = report.totalExpenses - report.totalRevenue;
  const auto left = truncate(std::ceil(remainingLife(state, *facts.freshest)));
  if (facts.isBestWeek) {
    return inTurn(facts,
                  {"Never so many in one week: " + streams + " from " + counted(facts.songsPlaying, "song") + ".",
                   "More than ever, by a little: " + streams + ", led by " + top + "."});
  }
  const std::string run =
      facts.rising >= longRun
          ? "A steady climb: more listeners for " + counted(facts.rising, "week") + " in a row, and " + streams + "."
      : facts.falling >= longRun
          ? "Listeners drift away, " + counted(facts.falling, "week") + " in a row now. " + streams + "."
          : "";
  return inTurn(
      facts, {"A quiet week: " + streams + " from " + counted(facts.songsPlaying, "song") + ".",
              streams + ", and " + counted(goal.listeners - state.totalFans, "listener") + " to go until there are " +
                  withCommas(goal.listeners) + ".",
              run,
              facts.songsPlaying > 1 && lead >= mostOfAll
                  ? top + " carried the week: " + percentOf(lead) + " of " + streams + "."
                  : "",
              loss > 0 ? streams + ", and the week still cost " + currency(loss) + " more than it brought." : "",
              quoted(facts.freshest->title) + " plays for " + counted(left, "week") + " more. This week brought " +
                  streams + "."});
}

std::string whilePlaying(const GameState& state, const WeeklyReport& report, const Facts& facts) {
  if (facts.streams == 0 || report.weeklySongListens.empty()) return withoutStreams(state, facts);
  const std::string streams = counted(facts.streams, "stream");
  if (!facts.offChart.empty())
    return quoted(facts.offChart) + " has left the chart, with " + streams + " for all your songs.";
  if (facts.silencedNow > 0) {
    const std::string fewer = facts.silencedNow == 1 ? "One voice" : counted(facts.silencedNow, "voice");
    const std::string song = quoted(facts.silenced);
    const std::string left = counted(facts.songsPlaying, "song") + " of yours";
    return inTurn(facts, {fewer + " fewer: " + left + " still " + (facts.songsPlaying == 1 ? "plays" : "play") +
                              ", for " + streams + ".",
                          song + " has had its time. What is left is " + left + ", and " + streams + ".",
                          streams + " this week, and from now on none of " + song + ".",
                          "The last week of " + song + ", and " + streams + " in all."});
  }
  if (facts.onChart) {
    const std::string song = quoted(facts.onChart->title);
    return inTurn(
        facts, {song + " holds on to the chart in a week of " + streams + ".",
                song + " is " + rank(facts.onChart->chartRanking) + " this week, and your songs had " + streams + ".",
                streams + " for your songs, and " + song + " stays on the Billboard 100.",
                "The chart has " + song + " at " + rank(facts.onChart->chartRanking) +
                    ". All your songs together: " + streams + "."});
  }
  const std::string change = changeOf(state, facts, streams, report.weeklySongListens.front());
  return change.empty() ? ordinary(state, report, facts, streams) : change;
}

}  // namespace

std::string weekStory(const Game& game, const WeeklyReport& report) {
  const Facts facts = factsOf(game, report);
  if (facts.songsOut == 0) return beforeAnySong(game.state, facts);
  if (facts.songsPlaying == 0) return afterTheLastSong(game, facts);
  return whilePlaying(game.state, report, facts);
}

std::optional<int64_t> streamsTheWeekBefore(const GameState& state, int64_t songId, CalendarWeek reported) {
  for (const WeeklySongListens& row : rowsOfWeek(state.saveAllWeeklySongListens, weekBefore(reported))) {
    if (row.songId == songId) return row.songListens;
  }
  return std::nullopt;
}

}  // namespace backbeat
