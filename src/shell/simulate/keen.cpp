#include "shell/simulate/keen.h"

#include "shell/simulate/habits.h"
#include "shell/simulate/stage_habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeksBetweenSongs = 2;
constexpr int64_t firstAlbumWeek = 52;
constexpr int64_t songsOnAlbum = 6;
constexpr int64_t boostsForASong = 4;
constexpr double enoughCash = 10'000;
constexpr double shareForASong = 0.2;
constexpr double shareForMarketing = 0.2;
constexpr double shareForTheStudio = 0.1;
constexpr int64_t weeksBetweenVideos = 8;
constexpr double shareForAVideo = 0.05;
constexpr TourHabit smallTour = {.shareOfEnergy = 0.3, .leastGain = 5'000};
constexpr int64_t productsOnTheShelf = 2;
constexpr double shareForAProduct = 0.25;

}  // namespace

void Keen::playWeek(Player& player, int64_t week) {
  const auto share = [&](double part) { return player.state().totalCashAvailable * part; };
  const bool makesAlbums = week > firstAlbumWeek;
  signWithALabel(player);
  lookForWork(player, enoughCash);
  if (makesAlbums) {
    workOnAlbum(player, {.songs = songsOnAlbum, .marketing = share(shareForMarketing)});
  }
  if (week % weeksBetweenSongs == 0) {
    releaseSingles(player, {.boosts = boostsForASong, .marketing = share(shareForMarketing), .announces = true});
  } else {
    makeSong(player, {.budget = share(shareForASong), .forAlbum = makesAlbums && week % (3 * weeksBetweenSongs) != 1});
  }
  if (week % weeksBetweenVideos == 0) filmBestSong(player, share(shareForAVideo));
  goOnTour(player, smallTour);
  runShop(player, {.products = productsOnTheShelf, .budget = share(shareForAProduct)});
  improveStudio(player, share(shareForTheStudio));
  practise(player, allTraits, 0);
  player.endTheWeek(true);
}

}  // namespace backbeat
