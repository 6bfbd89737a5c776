#include "merch/plans.h"

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "merch/products.h"

namespace backbeat {

namespace {

using Kind = MerchService::Kind;

constexpr int64_t daysInWeek = 7;

void setTerms(Game& game, const MerchService& service, const MerchPlan& plan) {
  GameState& state = game.state;
  switch (service.kind) {
    case Kind::website:
      state.merchWebsiteTransactionFee = plan.fee;
      return game.save(&GameState::merchWebsiteTransactionFee);
    case Kind::manufacturing:
      state.weeksToManufactureMerch = plan.weeks;
      state.maxMerchProducts = plan.limit;
      return game.save(&GameState::weeksToManufactureMerch, &GameState::maxMerchProducts);
    case Kind::logistics:
      state.weeksToShipMerch = plan.weeks;
      state.maxMerchCapacity = plan.limit;
      return game.save(&GameState::weeksToShipMerch, &GameState::maxMerchCapacity);
  }
}

/// Takes the service's entry out of the ledger; false when there was none.
bool removeEntry(GameState& state, const MerchService& service) {
  return state.saveAllWeeklyLineItems.eraseIf(
             [&](const WeeklyLineItem& item) { return item.typeOfExpense == service.typeOfExpense; }) > 0;
}

}  // namespace

bool isSetUp(const GameState& state, const MerchService& service) {
  switch (service.kind) {
    case Kind::website: return state.merchWebsiteTransactionFee != 0;
    case Kind::manufacturing: return state.maxMerchProducts != 0;
    case Kind::logistics: return state.maxMerchCapacity != 0;
  }
  return false;
}

std::string feeName(double fee) {
  if (fee >= dynamicFee) return "Transaction Fee + Dynamic Pricing";
  return fee >= onsiteFee ? "Transaction Fee + Onsite Terminals" : "Transaction Fee";
}

std::string serviceTerms(const GameState& state, const MerchService& service) {
  if (!isSetUp(state, service)) return std::string(service.missing);
  switch (service.kind) {
    case Kind::website:
      return withDecimals(state.merchWebsiteTransactionFee, 1) + "% " + feeName(state.merchWebsiteTransactionFee);
    case Kind::manufacturing:
      return std::to_string(state.weeksToManufactureMerch * daysInWeek) + " days per 10,000 units";
    case Kind::logistics: return std::to_string(state.weeksToShipMerch * daysInWeek) + " days";
  }
  return {};
}

std::optional<size_t> currentPlan(const GameState& state, const MerchService& service) {
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense != service.typeOfExpense) continue;
    for (size_t i = 0; i < service.plans.size(); ++i) {
      if (service.plans[i].weeklyPrice == item.amount) return i;
    }
  }
  return std::nullopt;
}

Outcome chooseMerchPlan(Game& game, const MerchService& service, size_t number) {
  GameState& state = game.state;
  if (currentPlan(state, service) == number) return {};
  const MerchPlan& plan = service.plans[number];
  if (service.kind == Kind::manufacturing && activeProducts(state) > plan.limit) {
    return refuse<"❌ Too Many Products ❌">(
        "\nYou have too many active products to switch to this plan.\n\nRetire products to downgrade.");
  }
  if (service.kind == Kind::logistics && unitsStored(state) > plan.limit) {
    return refuse<"❌ Too Much Inventory ❌">(
        "\nYou have too much inventory remaining to switch to this plan.\n\nRetire products to downgrade.");
  }
  const bool replaces = removeEntry(state, service);
  const auto title = replaces && plan.title == "Website (Touring)" ? "Website (Dynamic)" : plan.title;
  addExpense(state, title, plan.weeklyPrice, service.typeOfExpense);
  game.save(&GameState::saveAllWeeklyLineItems);
  setTerms(game, service, plan);
  stateChanged(game);
  return success();
}

Outcome cancelMerchPlan(Game& game, const MerchService& service) {
  if (activeProducts(game.state) > 0) {
    return refuse<"❌ Too Many Products ❌">(
        "\nYou have too many active products to cancel this plan.\n\nRetire all your products to cancel.");
  }
  removeEntry(game.state, service);
  game.save(&GameState::saveAllWeeklyLineItems);
  setTerms(game, service, MerchPlan{});
  stateChanged(game);
  return success();
}

}  // namespace backbeat
