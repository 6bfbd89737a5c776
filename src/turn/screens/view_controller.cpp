#include "turn/screens/view_controller.h"

#include <algorithm>

#include "career/energy.h"
#include "core/calendar.h"
#include "core/menu.h"
#include "core/money.h"
#include "core/needs.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "music/chart.h"
#include "music/screens/song_rows.h"
#include "social/chirps.h"
#include "turn/goals.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

constexpr size_t topSongs = 3;

std::string signedNumber(int64_t number) { return (number > 0 ? "+" : "") + withCommas(number); }

/// The best rank that any song of the artist ever held, verses for others among them, or 0.
int64_t bestChart(const GameState& state) {
  int64_t best = 0;
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (isOfTheLabel(row)) continue;
    if (best == 0 || row.peakPosition < best) best = row.peakPosition;
  }
  return best;
}

// What is asleep is out and off the chart, so that Home need not look at it.

/// The best rank that a song holds now, or 0.
int64_t chartNow(const GameState& state) {
  int64_t best = 0;
  for (const uint32_t position : state.saveAllSongList.awake()) {
    const int64_t ranking = state.saveAllSongList[position].chartRanking;
    if (ranking > 0 && (best == 0 || ranking < best)) best = ranking;
  }
  return best;
}

int64_t songsInMaking(const GameState& state) {
  const std::vector<uint32_t> awake = state.saveAllSongList.awake();
  return std::count_if(awake.begin(), awake.end(),
                       [&](uint32_t position) { return !state.saveAllSongList[position].isReleased; });
}

}  // namespace

Outcome ViewController::open() {
  rollCalendar(game_);
  return {};
}

Outcome ViewController::act(const Action& action) {
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  for (const std::string_view segue :
       {"goToArtistProfile", "goToMonthlyListenerDetail", "goToBillboard", "goToEnergyTransparency"}) {
    if (action.id == segue) return goTo(action.id);
  }
  Outcome way = followNeed(game_, action);
  return way.go ? way : followMenu(game_, homeTab, action);
}

View ViewController::view() const {
  View view{.title = state().myArtistsName.empty() ? "Backbeat" : state().myArtistsName,
            .subtitle = state().isLabelLaunched >= 1 ? state().myLabelName
                        : state().underContract >= 1 ? "Signed artist"
                                                     : "Independent artist",
            .picture = artistPicture(state()),
            .pictureId = "goToArtistProfile"};
  describeStanding(view);
  listNeeds(view, game_);
  describeGoal(view);
  describeWeek(view);
  describeMusic(view);
  addMenu(view, game_, homeTab);
  return view;
}

void ViewController::describeStanding(View& view) const {
  const std::vector<int64_t>& history = state().monthlyListenerData;
  Chart listeners{.title = "Monthly listeners",
                  .value = withCommas(state().totalFans),
                  .points = {history.begin(), history.end()},
                  .id = "goToMonthlyListenerDetail"};
  if (history.size() >= 2) {
    const int64_t change = history.back() - history[history.size() - 2];
    listeners.note = signedNumber(change) + " this week";
    listeners.tone = toneOfChange(change);
  }
  view.add(std::move(listeners));
  const int64_t inMaking = songsInMaking(state());
  const int64_t released = static_cast<int64_t>(state().saveAllSongList.size()) - inMaking;
  const int64_t best = bestChart(state());
  Tile followers{
      .icon = "people", .label = "Followers", .value = abbreviated(static_cast<double>(state().followerCount))};
  const MilestoneSnapshot& before = game_.turn.before;
  if (before.absoluteWeek + 1 == state().weekNumberForTracking && before.absoluteWeek > 0) {
    const int64_t change = state().followerCount - before.followers;
    if (change != 0) followers.note = signedNumber(change);
    followers.tone = toneOfChange(change);
  }
  Tile songs{.icon = "note", .label = "Songs out", .value = withCommas(released)};
  if (inMaking > 0) songs.note = "+" + withCommas(inMaking) + " finished";
  Tile chart{.icon = "trophy", .label = "Best chart", .value = best > 0 ? rank(best) : "–", .id = "goToBillboard"};
  if (const int64_t now = chartNow(state()); now > 0) chart.note = "now " + rank(now);
  view.add(Tiles{{std::move(followers), std::move(songs), std::move(chart)}});
}

void ViewController::describeGoal(View& view) const {
  const ListenerGoal goal = nextListenerGoal(state());
  view.add(Heading{"In sight"});
  view.add(Meter{.label = withCommas(goal.listeners) + " listeners" + (goal.isLabels ? ": labels begin to write" : ""),
                 .value = withCommas(state().totalFans),
                 .share = shareOf(state().totalFans, goal.listeners)});
  if (goal.weeks) view.add(caption("About " + counted(*goal.weeks, "week") + " at the pace of the last month"));
}

void ViewController::describeWeek(View& view) const {
  view.add(Heading{"Next week"});
  const double net = standingWeeklyNet(state());
  const bool needsWork = net < 0 && state().weeklyJobContractRemaining == 0;
  view.add(Rows{{wayTo("goToEnergyTransparency", "bolt", "Energy", "After standing costs",
                       std::to_string(nextWeeksEnergy(state()))),
                 {.picture = icon("cash"),
                  .title = "Standing net",
                  .subtitle = needsWork ? "Without a job" : standingNetCaption(state()),
                  .value = currency(net),
                  .tone = toneOfChange(net)}}});
  if (inFirstWeeks(state())) view.add(hint("Energy comes back each week. What is left over is gone, so spend it."));
}

void ViewController::describeMusic(View& view) const {
  const std::vector<size_t> songs = mostHeard(state(), topSongs);
  if (!songs.empty()) {
    view.add(Heading{"Top songs"});
    Rows rows;
    for (const size_t i : songs) rows.items.push_back(songRow(state(), state().saveAllSongList[i]));
    view.add(std::move(rows));
  }
  if (!state().saveAllChirpList.empty()) {
    view.add(Heading{"From your feed"});
    const Chirp& chirp = state().saveAllChirpList[0];
    view.add(Post{.picture = portraitOf(state(), chirp),
                  .name = chirp.artistName,
                  .age = chirpAge(chirp, game_.clock.now()),
                  .message = chirp.message,
                  .likes = abbreviated(static_cast<double>(chirp.likeCount))});
  }
}

}  // namespace backbeat
