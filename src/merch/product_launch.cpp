#include "merch/product_launch.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "core/text.h"
#include "merch/plans.h"
#include "merch/products.h"

namespace backbeat {

namespace {

constexpr int64_t fewestPoints = 10;
constexpr int64_t pointsForLimited = 50;
constexpr double pointsForPrice = 50;
constexpr double greatestPoints = 200;
constexpr double greatestPointsOfRecord = 300;

double meanRating(const std::vector<Song>& songs) {
  double sum = 0;
  for (const Song& song : songs) sum += song.productionRating;
  return sum / static_cast<double>(songs.size());
}

double drawPopularity(Game& game, const ProductDraft& draft, const std::vector<Song>& songs) {
  int64_t points = std::max(game.random.integer(0, std::max<int64_t>(game.state.virality, 0)), fewestPoints);
  if (draft.limitedEdition) points += pointsForLimited;
  // The dearer against its cost, the fewer.
  const double forPrice = pointsForPrice - 2 * (draft.pricing / draft.option->unitCost);
  if (forPrice > 0) points += truncate(forPrice);
  if (songs.empty()) return static_cast<double>(points) / greatestPoints;
  return (static_cast<double>(points) + meanRating(songs)) / greatestPointsOfRecord;
}

Merch productOf(const GameState& state, const ProductDraft& draft) {
  const MerchOption& option = *draft.option;
  Merch product;
  product.merchOptionId = option.itemId;
  product.category = option.category;
  product.subCategory = option.productName;
  product.imageString = option.imageString;
  product.energyCost = option.energyCost;
  product.totalCostPerUnit = option.unitCost;
  product.totalCost = launchCost(draft).dollars;
  product.pricePerUnit = product.salePricePerUnit = draft.pricing;
  product.startingInventory = product.remainingInventory = draft.quantity;
  product.limitedEdition = draft.limitedEdition ? 1 : 0;
  product.yearLaunched = state.yearNumber;
  product.weekLaunched = state.weekNumberForTracking;
  product.weeksToManufacture = weeksToManufacture(state, draft.quantity);
  product.weeksToShip = state.weeksToShipMerch;
  product.transactionFees = state.merchWebsiteTransactionFee / 100;
  product.artistPercentage = 100;
  return product;
}

}  // namespace

Outcome enterNewProduct(Game& game) {
  const GameState& state = game.state;
  if (!isSetUp(state, merchWebsite)) {
    return refuse<"👩💻 Website Needed 🧑💻">(
        "\nYou need a website to handle and process merchandise orders before you can create a product.");
  }
  if (!isSetUp(state, merchManufacturing)) {
    return refuse<"👷 Manufacturing Needed 👷">("\nYou need to hire a manufacturer before you can create a product.");
  }
  if (!isSetUp(state, merchLogistics)) {
    return refuse<"👷 Warehouse Needed 👷">(
        "\nYou need a place to store your merchandise before you can create a product.");
  }
  if (activeProducts(state) >= state.maxMerchProducts) {
    return refuse<"👷 Product Lines Needed 👷">(
        "\nYou need to upgrade your manufacturing plan or retire existing product lines before launching a new "
        "product.");
  }
  return {};
}

Outcome selectMerchOption(const GameState& state, const MerchOption& option) {
  const int64_t missing = option.listenersRequired - state.totalFans;
  if (missing <= 0) return {};
  return refuse<"🎧 More Listeners Needed 🎧">("\nNobody makes a product for fewer than " +
                                             withCommas(option.listenersRequired) + " monthly listeners. You are " +
                                             withCommas(missing) + " short.");
}

int64_t unitsLeft(const GameState& state) { return state.maxMerchCapacity - unitsStored(state); }

int64_t greatestOrder(const GameState& state) {
  return std::max(unitsLeft(state) / unitsPerStep * unitsPerStep, unitsPerStep);
}

std::vector<Song> songsFor(const GameState& state, const std::vector<int64_t>& songIds) {
  std::vector<Song> songs;
  for (const int64_t id : songIds) {
    for (const uint32_t position : state.saveAllSongList.historyOf(id)) {
      const Song& song = state.saveAllSongList[position];
      if (song.isReleased) songs.push_back(song);
    }
  }
  return songs;
}

Price launchCost(const ProductDraft& draft) {
  if (!draft.option) return {};
  return {.dollars = static_cast<double>(draft.quantity) * draft.option->unitCost + draft.option->startupCost};
}

double earningsOf(const GameState& state, const ProductDraft& draft) {
  return static_cast<double>(draft.quantity) * draft.pricing * (1 - state.merchWebsiteTransactionFee / 100);
}

int64_t weeksToShelf(const GameState& state, const ProductDraft& draft) {
  return weeksToManufacture(state, draft.quantity) + state.weeksToShipMerch + 1;
}

Outcome launchProduct(Game& game, const ProductDraft& draft) {
  GameState& state = game.state;
  if (!draft.option) return refuse<"👚 Choose Merch 👕">("\nChoose a product you would like to launch.");
  const Price cost = launchCost(draft);
  if (!hasCash(state, cost)) return noCash("\nYou don't have enough cash to launch this product.");
  const std::string name = trimmed(draft.name);
  if (name.empty()) return refuse<"🔥 Name Your Product 🔥">("\nEvery piece of merchandise needs a title.");
  if (draft.quantity > unitsLeft(state)) {
    return refuse<"👚 Not Enough Capacity 👕">(
        "\nYou don't have enough space at the warehouse to store this many units.");
  }
  std::vector<Song> songs;
  if (isRecord(*draft.option)) songs = songsFor(state, draft.songIds);
  if (isRecord(*draft.option) && songs.empty()) {
    return refuse<"🎶 Choose Songs 🎶">("\nYou need to choose your song list for " + name +
                                      " before you can launch this product.");
  }
  Merch product = productOf(state, draft);
  product.merchId = ++state.merchId;
  product.name = name;
  product.popularity = drawPopularity(game, draft, songs);
  product.songList = std::move(songs);
  state.merchEnergyCost += product.energyCost;
  state.saveAllMerchReleasedList.append(std::move(product));
  pay(game, cost);
  if (isRecord(*draft.option)) game.launch.merchSongs.clear();
  game.save(&GameState::saveAllMerchReleasedList, &GameState::merchId, &GameState::merchEnergyCost);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
