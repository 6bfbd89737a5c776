#include <algorithm>
#include <cstdint>
#include <string>

#include "play/golden_careers.h"

namespace backbeat {

namespace {

constexpr int64_t weeks = 78;
constexpr int64_t weeksBetweenSongs = 8;
constexpr const char* costliest = "5";  // of six
constexpr const char* greatestPlan = "plan:4";

/// Writes a song with the best that money buys.
void makeSong(Player& player, int64_t week) {
  player.tab(musicTab);
  player.press("createSongButton");
  player.press("title", "Hit " + std::to_string(week));
  for (const char* choice : {"writing", "musicality", "studio"}) player.press(choice, costliest);
  player.press("album", "0");
  player.press("createSongButton");
  player.settle();
}

/// Boosts, markets and releases the newest song.
void releaseSong(Player& player) {
  player.tab(musicTab);
  player.press("song:" + std::to_string(player.state().songId - 1));
  for (int boosts = 0; boosts < 10; ++boosts) {
    if (player.tryPress("boostProduction")) player.settle();
    if (player.tryPress("boostVirality")) player.settle();
  }
  player.press("marketingButton");
  player.press(greatestPlan);
  player.press("setMarketingButton");
  player.settle();
  player.press("releaseButton");
  player.settle();
}

}  // namespace

void playGoldenHits(Player& player) {
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week % weeksBetweenSongs == 1) {
      makeSong(player, week);
      releaseSong(player);
    }
    player.endTheWeek();
  }
}

}  // namespace backbeat
