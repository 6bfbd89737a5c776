#include "shell/simulate/habits.h"

#include <algorithm>
#include <string>
#include <vector>

#include "career/job_board.h"
#include "career/lifestyle.h"
#include "career/studio.h"
#include "core/view_find.h"
#include "music/album_release.h"
#include "music/marketing_plans.h"
#include "music/song_creation.h"
#include "music/song_release.h"
#include "shell/simulate/habit_words.h"

namespace backbeat {

namespace {

constexpr std::array<const char*, lifestyleCategories.size()> lifestyleButtons = {
    "goToFoodButton", "goToFashionButton", "goToHealthButton", "goToHomeButton", "goToTransportationButton"};
constexpr int64_t mostJobs = 5;

/// Of the rows `prefix`0, `prefix`1 and so on, each dearer than the one before: the last one that `budget` pays;
/// an empty one when it pays none.
Row dearestRow(Player& player, const std::string& prefix, double budget) {
  Row best;
  for (size_t i = 0;; ++i) {
    const Row row = rowWithId(player.view(), prefix + std::to_string(i));
    if (row.id.empty()) return best;
    if (dollarsOf(row.price) <= budget) best = row;
  }
}

/// Sends away the guests of the last song and asks the best one that `budget` pays and who comes.
void chooseGuest(Player& player, double budget) {
  player.press("goToFeaturedArtists");
  std::vector<std::string> toPress;
  std::string best;
  int64_t bestRating = 0;
  for (const Row& row : rowsOf(player.view())) {
    if (row.selected) toPress.push_back(row.id);
    const int64_t rating = numberIn(row.subtitle);
    if (row.tone == Tone::locked || dollarsOf(row.price) > budget || rating <= bestRating) continue;
    best = row.id;
    bestRating = rating;
  }
  if (!best.empty()) toPress.push_back(best);
  for (const std::string& guest : toPress) player.press(guest);
  player.back();
}

void openAlbum(Player& player, int64_t albumId) {
  player.tab(musicTab);
  player.press("kind", "1");
  player.press("album:" + std::to_string(albumId));
}

/// Buys the best campaign that `budget` pays for the song or album that is shown.
void market(Player& player, double budget) {
  if (budget < marketingPlans.front().cost.dollars) return;
  player.press("marketingButton");
  player.press(dearestRow(player, "plan:", budget).id);
  player.press("setMarketingButton");
}

void boost(Player& player, int64_t times) {
  for (int64_t i = 0; i < times; ++i) {
    const Button button = buttonWithId(player.view(), "boostProduction");
    if (!button.price || !hasEnergy(player, button.price->energy + releaseCost.energy)) return;
    player.press("boostProduction");
  }
}

void announce(Player& player) {
  if (!hasEnergy(player, buttonWithId(player.view(), "announceButton").price->energy + releaseCost.energy)) return;
  player.press("announceButton");
  player.tryPress("chirpButton");
  player.settle();
}

}  // namespace

void beginCareer(Player& player) {
  player.press("name", "Mara Quill");
  player.press("saveButton");
  player.settle();
}

void lookForWork(Player& player, double enoughCash) {
  const GameState& state = player.state();
  if (state.weeklyJobContractRemaining > 0 || state.totalCashAvailable >= enoughCash) return;
  if (!hasEnergy(player, jobBoardCost.energy)) return;
  player.tab(lifeTab);
  player.press("goToJobBoardButton");
  std::string best;
  double bestPay = 0;
  for (int64_t i = 1; i <= mostJobs; ++i) {
    const Row row = rowWithId(player.view(), "jobButton" + std::to_string(i));
    if (row.id.empty()) break;
    const auto energy = static_cast<double>(numberIn(row.value));
    const double pay = static_cast<double>(numberIn(row.subtitle)) / std::max(energy, 1.0);
    if (pay <= bestPay) continue;
    best = row.id;
    bestPay = pay;
  }
  if (!best.empty()) player.press(best);
}

void signWithALabel(Player& player) {
  if (player.launch().contractOfferState == 0 || player.state().underContract >= 1) return;
  player.tab(homeTab);
  player.press("goToContractOffer");
  player.press("signContract");
  player.settle();
}

void makeSong(Player& player, const SongPlan& plan) {
  if (!hasEnergy(player, songEnergy)) return;
  player.tab(musicTab);
  player.press("createSongButton");
  player.press("title", "Letter " + std::to_string(player.state().songId));
  if (plan.guestBudget > 0) chooseGuest(player, plan.guestBudget);
  double left = plan.budget;
  left -= chooseBest(player, "studio", left / 3);
  left -= chooseBest(player, "musicality", left / 2);
  chooseBest(player, "writing", left);
  if (plan.forAlbum)
    player.press("album", std::to_string(blockWithId<Choice>(player.view(), "album").options.size() - 1));
  player.press("createSongButton");
  player.settle();
}

void releaseSingles(Player& player, const ReleasePlan& plan) {
  std::vector<int64_t> waiting;
  for (const Song& song : player.state().saveAllSongList) {
    if (!song.isReleased && song.albumId == 0) waiting.push_back(song.songId);
  }
  for (const int64_t songId : waiting) {
    if (!hasEnergy(player, releaseCost.energy)) return;
    openSong(player, songId);
    if (plan.announces) announce(player);
    boost(player, plan.boosts);
    market(player, plan.marketing);
    player.press("releaseButton");
    player.settle();
  }
}

void workOnAlbum(Player& player, const AlbumPlan& plan) {
  const std::vector<size_t> inProduction = albumsInProduction(player.state());
  if (inProduction.empty()) {
    player.tab(musicTab);
    player.press("createAlbumButton");
    player.press("title", "Volume " + std::to_string(player.state().saveAllAlbumList.size()));
    player.press("createAlbumButton");
    return player.settle();
  }
  const Album album = player.state().saveAllAlbumList[inProduction.front()];
  if (album.songCount < plan.songs || !hasEnergy(player, albumReleaseCost.energy)) return;
  openAlbum(player, album.albumId);
  if (plan.price) {
    player.press("pricingButton");
    player.press("price", std::to_string(*plan.price));
    player.press("setPricingButton");
    player.settle();
    openAlbum(player, album.albumId);
  }
  market(player, plan.marketing);
  player.press("releaseButton");
  player.settle();
}

void practise(Player& player, std::span<const std::string_view> traits, int64_t energyKept) {
  player.tab(lifeTab);
  player.press("goToMyMusic");
  while (true) {
    std::string cheapest;
    int64_t least = player.state().totalEnergyAvailable - energyKept + 1;
    for (const std::string_view trait : traits) {
      const Row row = rowWithId(player.view(), "levelUpTrait:" + std::string(trait));
      if (!row.price || row.price->energy >= least) continue;
      cheapest = row.id;
      least = row.price->energy;
    }
    if (cheapest.empty()) return;
    player.press(cheapest);
  }
}

void improveStudio(Player& player, double budget) {
  player.tab(lifeTab);
  player.press("goToMyStudio");
  while (true) {
    std::string cheapest;
    double price = budget;
    for (const StudioPart& part : studioParts) {
      const Row row = rowWithId(player.view(), "upgradeStudio:" + std::string(part.key));
      if (!row.price || row.price->dollars > price) continue;
      cheapest = row.id;
      price = row.price->dollars;
    }
    if (cheapest.empty()) return;
    player.press(cheapest);
    budget -= price;
  }
}

void chooseLifestyles(Player& player, double weekly) {
  for (const char* category : lifestyleButtons) {
    player.tab(lifeTab);
    player.press(category);
    const Row best = dearestRow(player, "option:", weekly);
    if (!best.id.empty() && !best.selected) {
      player.press(best.id);
      player.answer(1);
    } else if (best.id.empty()) {
      player.press("clearExpense");
      player.answer(1);
    }
    player.settle();
  }
}

}  // namespace backbeat
