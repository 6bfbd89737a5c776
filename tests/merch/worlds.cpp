#include "play/worlds.h"

#include "merch/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

constexpr int64_t weeksOnSale = 6;

/// One of a shop, made under the plans of today.
Merch made(const GameState& state, const char* name, int64_t left) {
  Merch product = tShirt(name);
  product.weekLaunched = state.weekNumberForTracking - 30;
  product.yearLaunched = state.yearNumber - 1;
  product.remainingInventory = left;
  product.totalUnitsSold = product.startingInventory - left;
  product.totalRevenue = static_cast<double>(product.totalUnitsSold) * product.pricePerUnit;
  product.transactionFees = state.merchWebsiteTransactionFee / 100;
  return product;
}

Merch called(Merch product, int64_t optionId, const char* kind, const char* imageString, int64_t energyCost) {
  product.merchOptionId = optionId;
  product.subCategory = kind;
  product.imageString = imageString;
  product.energyCost = energyCost;
  return product;
}

Merch recordOf(const GameState& state, Merch product) {
  product = called(std::move(product), 2, "Vinyl", "vinyl.png", 2);
  product.category = "Music";
  for (size_t i = 0; i < 12; ++i) product.songList.push_back(state.saveAllSongList[i]);
  return product;
}

/// Twelve products: being made, on sale, running out this week, sold out both ways, ordered again, and retired.
void shop(GameState& state) {
  setDate(state, 200);
  furnishCareer(state, 18, 2);
  state.totalFans = 30'000'000;
  state.totalCashAvailable = 40'000'000;
  state.totalEnergyMax = 160;
  state.totalEnergyAvailable = 700;
  openShop(state, {.website = 2, .manufacturing = 2, .logistics = 2});
  Merch limited = made(state, "Glass Harbour Sweater", 0);
  limited.limitedEdition = 1;
  limited.minutesToSellOut = 38;
  Merch again = made(state, "Midnight Mug", 4'000);
  again.reorderCount = 2;
  again.totalUnitsSold = 26'000;
  Merch young = made(state, "Copper Hat", 10'000);
  young.weekLaunched = state.weekNumberForTracking - 1;
  young.yearLaunched = state.yearNumber;
  Merch old = made(state, "First Beanie", 0);
  old.isRetired = 1;
  Merch shown = made(state, "Lantern Hoody", 9'000);
  shown.showOnSpotify = 1;
  Merch few = made(state, "Last Cassette", 40);
  few.popularity = 1.2;
  stock(state, called(old, 5, "Beanie", "beanie1.png", 1));
  stock(state, made(state, "Static Tee", 0));
  stock(state, called(limited, 12, "Sweater", "sweater1.png", 2));
  stock(state, called(shown, 4, "Hoody", "hoody.png", 2));
  stock(state, called(again, 14, "Mug", "mug.png", 1));
  stock(state, called(young, 7, "Hat", "hat1.png", 1));
  stock(state, recordOf(state, made(state, "First Light LP", 7'500)));
  stock(state, called(few, 1, "Cassette", "cassette.png", 1));
  stock(state, called(made(state, "Tour Backpack", 8'000), 17, "Backpack", "backpack1.png", 3));
  stock(state, called(made(state, "Deep End", 6'500), 10, "Swimsuit", "swimsuit2.png", 3));
  stock(state, called(made(state, "Velvet Bag", 5'000), 19, "Handbag", "handbag1.png", 5));
  old.name = "Second Beanie";
  stock(state, called(old, 6, "Beanie", "beanie2.png", 1));
  for (int64_t ago = weeksOnSale; ago > 0; --ago) {
    for (const int64_t merchId : {4, 5, 7, 8, 9, 10, 11}) {
      addSale(state, merchId, state.weekNumberForTracking - ago, 300 + 40 * ago + 10 * merchId);
    }
  }
}

/// Three products of three, and a small warehouse that they fill.
void fullShop(GameState& state) {
  setDate(state, 90);
  furnishCareer(state, 4, 3);
  state.totalFans = 900'000;
  state.totalCashAvailable = 8'000'000;
  state.totalEnergyMax = 90;
  state.totalEnergyAvailable = 300;
  openShop(state, {});
  stock(state, made(state, "White Tee", 10'000));
  stock(state, made(state, "Black Tee", 10'000));
  stock(state, made(state, "Grey Tee", 4'500));
}

/// Everything is sold out, and there is neither the energy nor the money to do anything about it.
void emptyShop(GameState& state) {
  setDate(state, 90);
  furnishCareer(state, 2, 3);
  state.totalFans = 60'000;
  state.totalCashAvailable = 30'000;
  state.totalEnergyMax = 26;
  state.totalEnergyAvailable = 30;
  openShop(state, {});
  stock(state, made(state, "Grey Tee", 0));
}

const RoomWorlds worlds({{"shop", shop}, {"full shop", fullShop}, {"empty shop", emptyShop}});

}  // namespace
}  // namespace backbeat
