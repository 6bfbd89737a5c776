#include "play/golden_careers.h"

#include <algorithm>

#include "core/memory_store.h"
#include "shell/native/view_printer.h"
#include "shell/simulate/player.h"

namespace backbeat {

namespace {

constexpr uint64_t seed = 20230102;
constexpr int64_t weeks = 52;

void beginCareer(Player& player) {
  player.press("name", "Zoë Falk");
  player.press("saveButton");
  player.settle();
}

void makeSong(Player& player, int64_t week) {
  player.tab(musicTab);
  player.press("createSongButton");
  player.press("title", "Chapter " + std::to_string(week) + " – 日々");
  player.press("genre", std::to_string(week % 16));
  player.press("studio", player.state().totalCashAvailable > 3'000 ? "2" : "0");
  if (week % 4 == 0) player.press("explicit");
  player.press("createSongButton");
  player.settle();
}

/// Boosts, announces and releases the first song that is in production.
void releaseSong(Player& player) {
  player.tab(musicTab);
  const auto& songs = player.state().saveAllSongList;
  const auto waiting = std::find_if(songs.begin(), songs.end(), [](const Song& song) { return !song.isReleased; });
  if (waiting == songs.end()) return;
  const std::string song = "song:" + std::to_string(waiting->songId);
  player.press(song);
  player.press("boostProduction");
  player.press("boostVirality");
  player.press("announceButton");
  player.press("chirpButton");
  player.settle();
  player.tab(musicTab);
  player.press(song);
  player.press("releaseButton");
  player.settle();
}

void liveTheWeek(Player& player, int64_t week) {
  player.tab(lifeTab);
  if (week % 13 == 1) {
    player.press("goToJobBoardButton");
    player.press("jobButton1");
    player.settle();
    player.tab(lifeTab);
  }
  player.press("goToMyMusic");
  player.press("levelUpTrait:" + std::string(week % 2 == 0 ? "songWriting" : "virality"));
  player.settle();
  if (week % 6 == 2) {
    player.tab(socialTab);
    player.press("goToCreateTwitterMessage");
    player.press("message", "Week " + std::to_string(week) + " and still singing 🎤");
    player.press("chirpButton");
    player.settle();
  }
}

}  // namespace

std::vector<std::string> playGoldenYear(std::vector<std::string>& problems) {
  Player player(seed, problems);
  beginCareer(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week % 3 == 1) makeSong(player, week);
    if (week % 3 == 2) releaseSong(player);
    liveTheWeek(player, week);
    player.tab(homeTab);
    player.endTheWeek();
  }
  return player.lines();
}

std::string typedFor(const Trace& trace) {
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  std::string typed;
  for (const TraceEvent& event : trace.events) {
    if (event.screenKey == "tabs") {
      typed += std::string(tabs()[static_cast<size_t>(wholeNumber(event.action.value).value_or(0))].label) + "\n";
    } else if (event.screenKey == "nav") {
      typed += event.action.id == "back" ? "back\n" : "end\n";
    } else if (event.kind == TraceEvent::Kind::act) {
      const Shown shown = career.session().shown();
      const std::vector<Pressable> offered = printScreen(career.session().navigator(), shown, false).pressables;
      const auto chosen = std::find_if(offered.begin(), offered.end(), [&](const Pressable& each) {
        const bool sameButton = each.screenKey != "alert" || each.action.value == event.action.value;
        return each.screenKey == event.screenKey && each.action.id == event.action.id && sameButton;
      });
      typed += std::to_string(chosen - offered.begin() + 1);
      if (chosen != offered.end() && chosen->takes == Pressable::Takes::text) typed += " " + event.action.value;
      if (chosen != offered.end() && chosen->takes == Pressable::Takes::option) {
        typed += " " + std::to_string(wholeNumber(event.action.value).value_or(0) + 1);
      }
      typed += "\n";
    }
    career.play(event);
  }
  return typed;
}

}  // namespace backbeat
