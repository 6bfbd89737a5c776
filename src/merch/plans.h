// The three standing subscriptions behind a shop: who sells, who makes, who stores and ships. What binds launches and
// sales are the numbers in the state; the entry in the ledger says which plan is current, and what it costs.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "career/ledger.h"
#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

struct MerchPlan {
  std::string_view name;
  std::string_view title;  ///< of its entry in the ledger
  double weeklyPrice;      ///< dollars
  double fee = 0;          ///< per cent of a sale
  int64_t weeks = 0;       ///< to make 10,000 units, or to ship
  int64_t limit = 0;       ///< products, or units in store
};

struct MerchService {
  enum class Kind { website, manufacturing, logistics } kind;
  int64_t typeOfExpense;  ///< its code in the ledger
  std::string_view name;
  std::string_view icon;
  std::string_view lead;
  std::string_view missing;  ///< what the overview says without a plan
  std::array<MerchPlan, 3> plans;
};

inline constexpr MerchService merchWebsite = {
    MerchService::Kind::website,
    expense::firstMerch,
    "Website",
    "globe",
    "Where your listeners buy, and what a sale costs you.",
    "No Website Setup",
    {{{.name = "Standard", .title = "Website (Standard)", .weeklyPrice = 99, .fee = 2.5},
      {.name = "Touring", .title = "Website (Touring)", .weeklyPrice = 249, .fee = 2.9},
      {.name = "Premium", .title = "Website (Premium)", .weeklyPrice = 499, .fee = 3.5}}}};

inline constexpr MerchService merchManufacturing = {
    MerchService::Kind::manufacturing,
    expense::firstMerch + 1,
    "Manufacturing",
    "factory",
    "Who makes your products, and how fast.",
    "No Manufacturing Setup",
    {{{.name = "Bronze", .title = "Manufacturing (Bronze)", .weeklyPrice = 99, .weeks = 3, .limit = 3},
      {.name = "Silver", .title = "Manufacturing (Silver)", .weeklyPrice = 189, .weeks = 2, .limit = 7},
      {.name = "Gold", .title = "Manufacturing (Gold)", .weeklyPrice = 349, .weeks = 1, .limit = 12}}}};

inline constexpr MerchService merchLogistics = {
    MerchService::Kind::logistics,
    expense::firstMerch + 2,
    "Logistics",
    "box",
    "Who stores your products, and how fast they ship.",
    "No Warehousing Setup",
    {{{.name = "Small", .title = "Logistics (Small)", .weeklyPrice = 499, .weeks = 2, .limit = 25'000},
      {.name = "Medium", .title = "Logistics (Medium)", .weeklyPrice = 999, .weeks = 2, .limit = 125'000},
      {.name = "Large", .title = "Logistics (Large)", .weeklyPrice = 1'999, .weeks = 1, .limit = 1'000'000}}}};

inline constexpr std::array<const MerchService*, 3> merchServices = {&merchWebsite, &merchManufacturing,
                                                                     &merchLogistics};

/// From this fee on, in per cent, products can be sold at the shows of a tour.
inline constexpr double onsiteFee = 2.7;
/// From this fee on a product that runs out is sold for more.
inline constexpr double dynamicFee = 3.0;

/// Whether the state's numbers give the artist such a service, be it paid for or not.
bool isSetUp(const GameState& state, const MerchService& service);

/// What a fee of so many per cent pays for, by its height alone.
std::string feeName(double fee);

/// What it gives, by the state's numbers: "14 days per 10,000 units"; or that it is missing.
std::string serviceTerms(const GameState& state, const MerchService& service);

/// The plan whose entry stands in the ledger, by code and amount.
std::optional<size_t> currentPlan(const GameState& state, const MerchService& service);

/// Subscribes or switches; nothing is paid before the week's settlement. The current plan stays as it is. Refused while
/// the products or units there are exceed the new plan. Products keep the terms they were made with.
/// The touring website is called "Dynamic" when it takes the place of another: intended.
Outcome chooseMerchPlan(Game& game, const MerchService& service, size_t number);

/// Ends the charge and the service. Refused while a product is not retired.
Outcome cancelMerchPlan(Game& game, const MerchService& service);

}  // namespace backbeat
