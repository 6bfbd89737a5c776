#include "play/golden_careers.h"

#include <algorithm>

#include "shell/simulate/player.h"

namespace backbeat {

namespace {

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

void playGoldenYear(Player& player) {
  beginCareer(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week % 3 == 1) makeSong(player, week);
    if (week % 3 == 2) releaseSong(player);
    liveTheWeek(player, week);
    player.tab(homeTab);
    player.endTheWeek();
  }
}

}  // namespace backbeat
