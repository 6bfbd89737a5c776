#include "shell/simulate/stage_habits.h"

#include <algorithm>
#include <string>
#include <vector>

#include "career/touring.h"
#include "core/view_find.h"
#include "live/tour_locations.h"
#include "merch/catalogue.h"
#include "merch/plans.h"
#include "merch/product_launch.h"
#include "merch/products.h"
#include "music/song_release.h"
#include "shell/simulate/habit_words.h"
#include "video/video_creation.h"

namespace backbeat {

namespace {

constexpr const char* livelyStyles[] = {"Performance", "Animated", "Lyric"};  // the last one is free
constexpr int64_t fewestListenersOfAShop = 250'000;
constexpr int64_t listenersOfAUnit = 500;  // who buy one in half a year
constexpr size_t songsOfARecord = 8;

/// The best of the latest songs that are out and that nobody has filmed, by id; 0 when there is none.
int64_t bestSongToFilm(Player& player) {
  const GameState& state = player.state();
  player.tab(musicTab);
  player.press("kind", "0");
  const Song* best = nullptr;
  for (const Row& row : rowsOf(player.view())) {
    if (!row.id.starts_with("song:") || !canBeFilmed(state, numberIn(row.id))) continue;
    const Song& song = state.saveAllSongList[*songPosition(state, numberIn(row.id))];
    if (!best || song.productionRating > best->productionRating) best = &song;
  }
  return best ? best->songId : 0;
}

/// Takes the first of the lively styles that `budget` pays; what it costs.
double chooseStyle(Player& player, double budget) {
  const Choice styles = blockWithId<Choice>(player.view(), "style");
  for (const char* wanted : livelyStyles) {
    for (size_t i = 0; i < styles.options.size(); ++i) {
      const double cost = dollarsOf(styles.options[i].price);
      if (styles.options[i].label != wanted || cost > budget) continue;
      player.press("style", std::to_string(i));
      return cost;
    }
  }
  return 0;
}

/// The dearest promotion that `budget` pays; the first one is none.
void choosePromotion(Player& player, double budget) {
  const Choice promotions = blockWithId<Choice>(player.view(), "promotion");
  size_t best = 0;
  for (size_t i = 1; i < promotions.options.size(); ++i) {
    if (dollarsOf(promotions.options[i].price) <= budget) best = i;
  }
  if (best > 0) player.press("promotion", std::to_string(best));
}

struct TriedVenue {
  std::string id;
  double gainOfEnergy = 0;  ///< dollars for a unit of energy
};

double plannedGain(Player& player) { return figureLabelled(player.view(), "Expected for you").amount; }

double energyLeft(Player& player) { return figureLabelled(player.view(), "Tour Energy Left: ").amount; }

/// What each venue alone would leave, the best for its energy first; those that lose money are not among them.
std::vector<TriedVenue> venuesThatPay(Player& player) {
  std::vector<TriedVenue> paying;
  for (const TourLocation& location : tourLocations) {
    const std::string id = "venue:" + std::to_string(location.id);
    player.press(id);
    const double gain = plannedGain(player) / static_cast<double>(std::max<int64_t>(showEnergy(location), 1));
    if (gain > 0) paying.push_back({id, gain});
    player.press(id);
  }
  std::stable_sort(paying.begin(), paying.end(),
                   [](const TriedVenue& a, const TriedVenue& b) { return a.gainOfEnergy > b.gainOfEnergy; });
  return paying;
}

/// Subscribes to the cheapest plan of each service that is missing.
void openShop(Player& player) {
  for (const MerchService* service : merchServices) {
    if (isSetUp(player.state(), *service)) continue;
    player.press("goToMerch" + std::string(service->name));
    player.press("plan", "0");
    player.back();
  }
}

void orderAgain(Player& player, double budget) {
  std::vector<int64_t> soldOut;
  for (const Merch& product : player.state().saveAllMerchReleasedList) {
    if (canRestock(product)) soldOut.push_back(product.merchId);
  }
  for (const int64_t id : soldOut) {
    player.press("goToAdminMerch:" + std::to_string(id));
    const auto cost = buttonWithId(player.view(), "restockButton").price;
    if (cost && cost->dollars <= budget && hasEnergy(player, cost->energy)) {
      player.press("restockButton");
      player.answer(1);
      budget -= cost->dollars;
    }
    player.back();
  }
}

/// The first of the catalogue that is not on the shelf; its size when all are.
size_t productToMake(const GameState& state) {
  const auto& products = state.saveAllMerchReleasedList;
  for (size_t i = 0; i < merchCatalogue.size(); ++i) {
    const bool onShelf = products.find([&](const Merch& product) {
      return product.isRetired == 0 && product.merchOptionId == merchCatalogue[i].itemId;
    }) != products.size();
    if (!onShelf) return i;
  }
  return merchCatalogue.size();
}

void chooseRecordSongs(Player& player) {
  player.press("goToChooseMerchSongList");
  std::vector<std::string> songs;  // the best come first
  for (const Row& row : rowsOf(player.view())) {
    if (!row.id.empty() && !row.selected && songs.size() < songsOfARecord) songs.push_back(row.id);
  }
  for (const std::string& song : songs) player.press(song);
  player.press("doneButton");
}

void moveTo(Player& player, const std::string& slider, int64_t position) {
  const int64_t last = blockWithId<Slider>(player.view(), slider).count - 1;
  player.press(slider, std::to_string(std::clamp<int64_t>(position, 0, std::max<int64_t>(last, 0))));
}

void makeAnother(Player& player, double budget) {
  const size_t option = productToMake(player.state());
  if (option == merchCatalogue.size() || unitsLeft(player.state()) < unitsPerStep) return;
  player.press("goToLaunchNewMerch");
  player.press("option", std::to_string(option));
  player.press("dice");
  moveTo(player, "quantity", player.state().totalFans / listenersOfAUnit / unitsPerStep - 1);
  moveTo(player, "price", blockWithId<Slider>(player.view(), "price").count - 1);
  if (dollarsOf(buttonWithId(player.view(), "launchMerchButton").price) > budget) return;
  if (isRecord(merchCatalogue[option])) chooseRecordSongs(player);
  player.press("launchMerchButton");
  player.settle();
}

}  // namespace

void filmBestSong(Player& player, double budget) {
  if (!hasEnergy(player, videoEnergy)) return;
  const int64_t songId = bestSongToFilm(player);
  if (songId == 0) return;
  openSong(player, songId);
  player.press("musicVideoButton");
  double left = budget;
  left -= chooseBest(player, "director", left / 2);
  left -= chooseStyle(player, left);
  if (player.state().underContract < 1) choosePromotion(player, left);
  player.press("createButton");
  player.settle();
}

void goOnTour(Player& player, const TourHabit& habit) {
  const GameState& state = player.state();
  if (!mayTour(state) || state.onTour != 0 || state.timeUntilNextTour >= 1) return;
  player.tab(musicTab);
  player.press("goToTour");
  const double spare = energyLeft(player);
  const double kept = std::max(spare - habit.shareOfEnergy * static_cast<double>(state.totalEnergyMax), 0.0);
  for (const TriedVenue& venue : venuesThatPay(player)) {
    player.press(venue.id);
    if (energyLeft(player) < kept) player.press(venue.id);
  }
  if (plannedGain(player) <= habit.leastGain) return;
  player.press("startTouringButton");
  player.settle();
}

void runShop(Player& player, const ShopHabit& habit) {
  const GameState& state = player.state();
  const bool isOpen = state.merchId > 0;
  const double firstOrder = merchCatalogue[0].startupCost + merchCatalogue[0].unitCost * unitsPerStep;
  if (!isOpen && (state.totalFans < fewestListenersOfAShop || habit.budget < firstOrder)) return;
  player.tab(businessTab);
  player.press("goToMerch");
  openShop(player);
  orderAgain(player, habit.budget);
  if (activeProducts(state) < std::min(habit.products, state.maxMerchProducts)) makeAnother(player, habit.budget);
}

}  // namespace backbeat
