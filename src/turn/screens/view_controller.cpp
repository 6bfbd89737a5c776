#include "turn/screens/view_controller.h"

#include <algorithm>

#include "career/energy.h"
#include "core/calendar.h"
#include "core/menu.h"
#include "core/money.h"
#include "core/needs.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "music/screens/song_rows.h"
#include "social/chirps.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

constexpr size_t topSongs = 3;

std::string signedNumber(int64_t number) { return (number > 0 ? "+" : "") + withCommas(number); }

/// The best rank that any song of the artist ever held, or 0.
int64_t bestChart(const GameState& state) {
  int64_t best = 0;
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (best == 0 || row.peakPosition < best) best = row.peakPosition;
  }
  return best;
}

}  // namespace

Outcome ViewController::open() {
  rollCalendar(game_);
  return {};
}

Outcome ViewController::act(const Action& action) {
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  for (const std::string_view segue : {"goToMonthlyListenerDetail", "goToBillboard", "goToEnergyTransparency"}) {
    if (action.id == segue) return goTo(action.id);
  }
  Outcome way = followNeed(game_, action);
  return way.go ? way : followMenu(game_, homeTab, action);
}

View ViewController::view() const {
  View view;
  view.title = state().myArtistsName.empty() ? "Backbeat" : state().myArtistsName;
  view.subtitle = state().isLabelLaunched >= 1 ? state().myLabelName
                  : state().underContract >= 1 ? "Signed artist"
                                               : "Independent artist";
  view.picture = artistPicture(state());
  listNeeds(view, game_);
  describeStanding(view);
  describeWeek(view);
  describeMusic(view);
  addMenu(view, game_, homeTab);
  return view;
}

void ViewController::describeStanding(View& view) const {
  Chart listeners;
  listeners.id = "goToMonthlyListenerDetail";
  listeners.title = "Monthly listeners";
  listeners.value = withCommas(state().totalFans);
  const std::vector<int64_t>& history = state().monthlyListenerData;
  if (history.size() >= 2) {
    const int64_t change = history.back() - history[history.size() - 2];
    listeners.note = signedNumber(change) + " this week";
    listeners.tone = change < 0 ? Tone::bad : change > 0 ? Tone::good : Tone::plain;
  }
  for (const int64_t value : history) listeners.points.push_back(static_cast<double>(value));
  view.add(std::move(listeners));
  Tiles tiles;
  tiles.items.push_back(
      {"people", "Followers", abbreviated(static_cast<double>(state().followerCount)), "", Tone::plain, ""});
  const auto released = std::count_if(state().saveAllSongList.begin(), state().saveAllSongList.end(),
                                      [](const Song& song) { return song.isReleased; });
  tiles.items.push_back({"note", "Songs out", withCommas(released), "", Tone::plain, ""});
  const int64_t best = bestChart(state());
  tiles.items.push_back({"trophy", "Best chart", best > 0 ? rank(best) : "–", "", Tone::plain, "goToBillboard"});
  view.add(std::move(tiles));
}

void ViewController::describeWeek(View& view) const {
  view.add(Heading{"Next week", {}});
  Row energy = wayTo("goToEnergyTransparency", "bolt", "Energy", "After standing costs");
  energy.value = std::to_string(nextWeeksEnergy(state()));
  Row money;
  money.picture = icon("cash");
  money.title = "Standing net";
  const double net = standingWeeklyNet(state());
  const bool needsWork = net < 0 && state().weeklyJobContractRemaining == 0;
  money.subtitle = needsWork ? "No job: the Job Board in Life has one" : "Job and weekly entries";
  money.value = currency(net);
  money.tone = net < 0 ? Tone::bad : Tone::good;
  view.add(Rows{{std::move(energy), std::move(money)}});
}

void ViewController::describeMusic(View& view) const {
  const RecordList<Song>& all = state().saveAllSongList;
  std::vector<size_t> songs;
  for (size_t i = 0; i < all.size(); ++i) {
    if (all[i].isReleased) songs.push_back(i);
  }
  if (!songs.empty()) {
    const size_t shown = std::min(topSongs, songs.size());
    // Of equal ones the first in the list; the others need no order.
    std::partial_sort(
        songs.begin(), songs.begin() + static_cast<std::ptrdiff_t>(shown), songs.end(), [&](size_t a, size_t b) {
          return all[a].totalListen != all[b].totalListen ? all[a].totalListen > all[b].totalListen : a < b;
        });
    view.add(Heading{"Top songs", {}});
    Rows rows;
    for (size_t i = 0; i < shown; ++i) rows.items.push_back(songRow(state(), all[songs[i]]));
    view.add(std::move(rows));
  }
  if (!state().saveAllChirpList.empty()) {
    view.add(Heading{"From your feed", {}});
    const Chirp& chirp = state().saveAllChirpList[0];
    Post post;
    post.picture = person(chirp.artistName);
    post.name = chirp.artistName;
    post.age = chirpAge(chirp, game_.clock.now());
    post.message = chirp.message;
    post.likes = abbreviated(static_cast<double>(chirp.likeCount));
    view.add(std::move(post));
  }
}

}  // namespace backbeat
