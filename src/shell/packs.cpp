#include "shell/packs.h"

#include <algorithm>
#include <string>

#include "core/calendar.h"
#include "core/purse.h"

namespace backbeat {

namespace {

size_t weekOf(const GameState& state, std::string_view product) {
  return state.packWeeks.find([&](const PackWeek& taken) { return taken.product == product; });
}

void noteWeek(Game& game, const std::string& product) {
  RecordList<PackWeek>& weeks = game.state.packWeeks;
  const size_t found = weekOf(game.state, product);
  const PackWeek taken{product, game.state.weekNumberForTracking};
  if (found == weeks.size()) {
    weeks.append(taken);
  } else {
    weeks.update(found, [&](PackWeek& known) { known = taken; });
  }
  game.save(&GameState::packWeeks);
}

void open(Game& game, const Pack& pack) {
  GameState& state = game.state;
  earn(game, pack.gift);
  state.permanentEnergyUpgrade += pack.permanentEnergy;
  state.totalEnergyMax += pack.permanentEnergy;
  state.assisted = 1;
  game.save(&GameState::permanentEnergyUpgrade, &GameState::totalEnergyMax, &GameState::assisted);
  stateChanged(game);
}

}  // namespace

const Pack* packNamed(std::string_view product) {
  const auto found =
      std::find_if(packs.begin(), packs.end(), [&](const Pack& pack) { return pack.product == product; });
  return found == packs.end() ? nullptr : &*found;
}

bool takenThisWeek(const GameState& state, std::string_view product) {
  const size_t found = weekOf(state, product);
  return found < state.packWeeks.size() && state.packWeeks[found].weekNumberForTracking == state.weekNumberForTracking;
}

bool isAwaited(const Game& game, std::string_view product) {
  const std::vector<std::string>& awaited = game.launch.awaitedPacks;
  return std::find(awaited.begin(), awaited.end(), product) != awaited.end();
}

Outcome buyPack(Game& game, std::string_view product) {
  const std::vector<PackOffer> offers = game.platform.packOffers();
  const auto offer =
      std::find_if(offers.begin(), offers.end(), [&](const PackOffer& each) { return each.product == product; });
  if (offer == offers.end() || !packNamed(product)) return {};
  if (isAwaited(game, product)) return refuse<"🛍 On Its Way 🛍">("\nThe shop has been asked and will answer.");
  if (offer->free && takenThisWeek(game.state, product)) {
    return refuse<"🎁 Once a Week 🎁">("\nYou've had this pack this week. End the week and there is another.");
  }
  game.launch.awaitedPacks.emplace_back(product);
  game.platform.purchase(product);
  return {};
}

bool isCredited(const GameState& state, std::string_view transaction) {
  const RecordList<CreditedPurchase>& credited = state.creditedPurchases;
  return credited.find([&](const CreditedPurchase& one) { return one.transaction == transaction; }) < credited.size();
}

Outcome takePurchase(Game& game, const PurchaseAnswer& answer) {
  std::erase(game.launch.awaitedPacks, answer.product);
  if (answer.result == PurchaseAnswer::Result::refused) return {};
  if (answer.result == PurchaseAnswer::Result::failed) {
    return refuse<"🛍 Nothing Bought 🛍">(
        "\nThe shop could not be reached. Nothing was paid and nothing has changed.");
  }
  const Pack* pack = packNamed(answer.product);
  if (!pack || answer.transaction.empty() || isCredited(game.state, answer.transaction)) return {};
  game.state.creditedPurchases.append({answer.transaction});
  game.save(&GameState::creditedPurchases);
  if (answer.free && takenThisWeek(game.state, answer.product)) return {};
  if (answer.free) noteWeek(game, answer.product);
  open(game, *pack);
  return news<"🎁 Yours 🎁">("\n" + std::string(pack->title) + ". Make something of it.");
}

}  // namespace backbeat
