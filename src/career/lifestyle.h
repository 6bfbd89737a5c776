// How the artist lives: standing weekly dollars for a higher energy ceiling, or for virality.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "career/ledger.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct LifestyleOption {
  std::string_view title;
  int64_t energyBoost = 0;  ///< points of energy ceiling; of virality for fashion
  double cost = 0;          ///< dollars a week, and once more at the choice

  constexpr Price firstPayment() const { return {.dollars = cost}; }
};

struct LifestyleCategory {
  int64_t typeOfExpense;  ///< its code in the ledger, which holds one entry of it at most
  std::string_view title;
  std::string_view icon;
  std::string_view description;
  std::array<LifestyleOption, 5> options;

  constexpr bool givesVirality() const { return typeOfExpense == expense::fashion; }
};

/// By code, 0 to 4.
inline constexpr std::array<LifestyleCategory, 5> lifestyleCategories = {{
    {expense::food,
     "FOOD",
     "food",
     "Eating healthy increases your max energy.",
     {{{"JUNK FOOD", 0, 100},
       {"BALANCED", 2, 150},
       {"ORGANIC", 4, 300},
       {"FINE DINING", 6, 750},
       {"HOUSE CHEF", 10, 1'500}}}},
    {expense::fashion,
     "FASHION",
     "fashion",
     "Your style gives virality bonuses.",
     {{{"THRIFTY", 0, 15},
       {"BASIC", 1, 300},
       {"TRENDY", 2, 750},
       {"DESIGNER", 3, 2'000},
       {"CELEBRITY STYLIST", 5, 5'000}}}},
    {expense::health,
     "HEALTH",
     "health",
     "Taking care of your body increases your max energy.",
     {{{"GYM MEMBERSHIP", 0, 25},
       {"BOOTCAMP", 1, 50},
       {"CRYOTHERAPY", 2, 100},
       {"PERSONAL TRAINER", 4, 200},
       {"CELEBRITY TRAINER", 8, 500}}}},
    {expense::home,
     "HOME",
     "house",
     "A place to rest lets you recharge quickly.",
     {{{"APARTMENT", 0, 300},
       {"SINGLE FAMILY", 5, 750},
       {"BEACHFRONT", 10, 1'500},
       {"PENTHOUSE", 15, 4'000},
       {"PRIVATE CHATEAU", 25, 10'000}}}},
    {expense::transportation,
     "TRANSPORTATION",
     "car",
     "Saving time, saves energy. Travel in style.",
     {{{"MOPED", 0, 75},
       {"USED SUV", 2, 150},
       {"SPORTS CAR", 4, 450},
       {"PRIVATE DRIVER", 6, 1'500},
       {"HELICOPTER", 10, 5'000}}}},
}};

/// The entry that stands for the category, if any.
std::optional<WeeklyLineItem> lifestyleEntry(const GameState& state, const LifestyleCategory& category);

/// Asks before an option is taken; the answer "Confirm" sends `confirmed`. Says that the first payment does not reach
/// when it does not, and offers nothing to confirm then. The option that runs already can be taken, and paid, again.
Outcome askForLifestyle(const GameState& state, const LifestyleOption& option, bool givesVirality, Action confirmed);

/// Takes the option, in place of the one that ran: what that one gave goes at once. The first payment comes on top of
/// the week's charge: intended. Refused, as above, when it does not reach.
Outcome chooseLifestyle(Game& game, const LifestyleCategory& category, const LifestyleOption& option);

/// Asks before the category's entry is removed, or tells that there is none.
Outcome askToClearLifestyle(const GameState& state, const LifestyleCategory& category, Action confirmed);

/// Removes the category's entry and what it gave; without one it only tells so.
Outcome clearLifestyleExpense(Game& game, const LifestyleCategory& category);

}  // namespace backbeat
