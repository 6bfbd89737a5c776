#include "wealth/real_estate.h"

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

std::string percentOf(double share) { return withDecimals(share * 100, 0) + "%"; }

Outcome tooTired() { return noEnergy("\nYou do not have enough energy to handle this process."); }

/// Nothing when the price can be paid.
std::optional<Outcome> whyNotToBuy(const GameState& state, const Property& property) {
  if (!hasEnergy(state, costOf(property))) return tooTired();
  if (!hasCash(state, costOf(property))) {
    return noCash<"💰Not Enough Cash💰">("\nYou do not have enough capital to purchase this property.");
  }
  return std::nullopt;
}

InvestmentProperty holdingOf(const GameState& state, const Property& property) {
  InvestmentProperty home;
  home.propertyTitle = property.propertyTitle;
  home.propertyId = property.propertyId;
  home.propertyLocation = property.propertyLocation;
  home.pricePaid = property.salePrice;
  home.realEstateIndex = state.realEstateIndex;
  home.bedrooms = property.bedrooms;
  home.bathrooms = property.bathrooms;
  home.sqft = property.sqft;
  home.acres = property.acres;
  home.propertyTax = truncate(property.weeklyTax());
  home.propertyType = property.propertyType;
  home.imageName = property.imageName;
  home.transactionFee = property.transactionFee;
  return home;
}

}  // namespace

std::optional<size_t> holdingPosition(const GameState& state, int64_t propertyId) {
  const auto& homes = state.saveAllInvestmentPropertyList;
  const size_t position = homes.find([&](const InvestmentProperty& home) { return home.propertyId == propertyId; });
  return position == homes.size() ? std::nullopt : std::optional(position);
}

std::vector<const Property*> listedProperties(const GameState& state) {
  std::vector<const Property*> listed;
  for (const Property& property : properties) {
    if (!holdingPosition(state, property.propertyId)) listed.push_back(&property);
  }
  return listed;
}

int64_t propertyTaxCode(int64_t propertyId) { return propertyId + 2'000; }

double proceedsOf(const GameState& state, const InvestmentProperty& home) {
  return estimateOf(state, home) * (1 - home.transactionFee);
}

Price costOf(const Property& property) { return {.energy = 75, .dollars = property.salePrice}; }

Outcome askToBuyProperty(const GameState& state, const Property& property, Action confirmed) {
  if (std::optional<Outcome> refusal = whyNotToBuy(state, property)) return *std::move(refusal);
  return ask<"💰For Sale💰">(
      "\nThanks for your interest in this property. Please review the weekly property tax rates below:\n\nPrice\n" +
          currency(property.salePrice) + "\n\nProperty Tax\n " + currency(property.weeklyTax()) +
          "/wk\n\nIf you decide to sell this property, a " + percentOf(property.transactionFee) +
          " transaction fee will be charged.\n\nAre you sure you want to purchase this property?",
      "Cancel", {"Purchase", std::move(confirmed), AlertButton::Style::normal});
}

Outcome buyProperty(Game& game, const Property& property) {
  GameState& state = game.state;
  if (holdingPosition(state, property.propertyId)) return {};
  if (std::optional<Outcome> refusal = whyNotToBuy(state, property)) return *std::move(refusal);
  pay(game, costOf(property));
  state.saveAllInvestmentPropertyList.append(holdingOf(state, property));
  addExpense(state, "Property Tax", property.weeklyTax(), propertyTaxCode(property.propertyId));
  game.save(&GameState::saveAllInvestmentPropertyList, &GameState::saveAllWeeklyLineItems);
  stateChanged(game);
  return success();
}

Outcome askToSellProperty(const GameState& state, int64_t propertyId, Action confirmed) {
  const auto position = holdingPosition(state, propertyId);
  if (!position) return {};
  if (!hasEnergy(state, sellPropertyCost)) return tooTired();
  const InvestmentProperty& home = state.saveAllInvestmentPropertyList[*position];
  const double estimate = estimateOf(state, home);
  return ask<"💰Sell Property💰">(
      "\nYou are listing " + home.propertyTitle + " in " + home.propertyLocation + ".\n\nPurchase Price\n" +
          currency(home.pricePaid) + "\n\nEstimate\n" + currency(estimate) + "\n\nTransaction Fee (" +
          percentOf(home.transactionFee) + ")\n" + currency(-estimate * home.transactionFee) + "\n\nYou Receive\n" +
          currency(proceedsOf(state, home)) + "\n\nAre you sure you want to sell this property?",
      "Cancel", {"Sell", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome sellProperty(Game& game, int64_t propertyId) {
  GameState& state = game.state;
  const auto position = holdingPosition(state, propertyId);
  if (!position) return {};
  if (!hasEnergy(state, sellPropertyCost)) return tooTired();
  const InvestmentProperty sold = state.saveAllInvestmentPropertyList[*position];
  const double proceeds = proceedsOf(state, sold);
  pay(game, sellPropertyCost);
  earn(game, {.dollars = proceeds});
  state.saveAllInvestmentPropertyList.erase(*position);
  removeEntry(state, propertyTaxCode(propertyId));
  game.save(&GameState::saveAllInvestmentPropertyList, &GameState::saveAllWeeklyLineItems);
  stateChanged(game);
  const double gain = proceeds - sold.pricePaid;
  return news<"🔑 Sold 🔑">("\n" + sold.propertyTitle + " has new owners. " + currency(proceeds) +
                          " is yours after the fee, " + currency(std::abs(gain)) +
                          (gain < 0 ? " less than you paid." : " more than you paid."));
}

std::vector<KnownIndex> knownIndexes(const GameState& state) {
  std::vector<KnownIndex> known;
  const auto add = [&](int64_t year, double index) {
    if (known.empty() || known.back().year != year) known.push_back({.year = year});
    known.back().index = index;
  };
  for (const InvestmentProperty& home : state.saveAllInvestmentPropertyList) {
    const size_t tax = entryPosition(state, propertyTaxCode(home.propertyId));
    if (tax != state.saveAllWeeklyLineItems.size()) add(state.saveAllWeeklyLineItems[tax].year, home.realEstateIndex);
  }
  add(state.yearNumber, state.realEstateIndex);
  return known;
}

std::string indexText(double index) { return "Index: " + withDecimals(index, 3); }

std::string acresText(double acres) {
  if (acres >= 1'000) return withCommas(truncate(acres));
  std::string text = withDecimals(acres, 2);
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text;
}

Picture propertyPicture(int64_t propertyId, const std::string& title) {
  const Property* property = propertyWithId(propertyId);
  return drawn(Picture::Kind::scene, property ? property->form : "place", title);
}

}  // namespace backbeat
