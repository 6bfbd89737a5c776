#include "shell/simulate/mogul.h"

#include "shell/simulate/habits.h"
#include "shell/simulate/stage_habits.h"

namespace backbeat {

namespace {

constexpr int64_t firstAlbumWeek = 26;
constexpr int64_t songsOnAlbum = 8;
constexpr int64_t boostsForASong = 9;
constexpr int64_t weeksOfALifestyle = 13;
constexpr double enoughCash = 10'000;
constexpr double shareForASong = 0.5;
constexpr double shareForAGuest = 0.3;
constexpr double shareForMarketing = 0.5;
constexpr double shareForTheStudio = 0.25;
constexpr double shareForAWeekOfLife = 0.004;
constexpr size_t albumPrice = 2;  // $9.99
constexpr int64_t weeksBetweenVideos = 4;
constexpr double shareForAVideo = 0.2;
constexpr TourHabit greatTour = {.shareOfEnergy = 0.5};
constexpr int64_t productsOnTheShelf = 3;
constexpr double shareForAProduct = 0.5;

}  // namespace

void Mogul::playWeek(Player& player, int64_t week) {
  const auto share = [&](double part) { return player.state().totalCashAvailable * part; };
  const bool makesAlbums = week > firstAlbumWeek;
  if (week % weeksOfALifestyle == 0) chooseLifestyles(player, share(shareForAWeekOfLife));
  signWithALabel(player);
  lookForWork(player, enoughCash);
  if (makesAlbums) {
    workOnAlbum(player, {.songs = songsOnAlbum, .marketing = share(shareForMarketing), .price = albumPrice});
  }
  releaseSingles(player, {.boosts = boostsForASong, .marketing = share(shareForMarketing), .announces = true});
  makeSong(
      player,
      {.budget = share(shareForASong), .guestBudget = share(shareForAGuest), .forAlbum = makesAlbums && week % 4 != 1});
  if (week % weeksBetweenVideos == 0) filmBestSong(player, share(shareForAVideo));
  goOnTour(player, greatTour);
  runShop(player, {.products = productsOnTheShelf, .budget = share(shareForAProduct)});
  improveStudio(player, share(shareForTheStudio));
  practise(player, allTraits, 0);
  player.endTheWeek(true);
}

}  // namespace backbeat
