// The goals of a whole life: what they ask for, and when they are reached. A reached goal stays reached and pays
// nothing.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "recognition/achievement_progress.h"

namespace backbeat {

/// What kind of life a goal belongs to, in the order in which they are looked for.
enum class GoalKind { wealth, charts, music, awards, features, touring, family, festivals };

struct GoalKindWords {
  std::string_view title;
  std::string_view icon;
};
inline constexpr std::array<GoalKindWords, 8> goalKinds = {{{"Wealth and holdings", "cash"},
                                                            {"Songs and charts", "chart"},
                                                            {"Albums and videos", "album"},
                                                            {"Awards", "trophy"},
                                                            {"Features", "guest"},
                                                            {"Tours", "ticket"},
                                                            {"Love and family", "heart"},
                                                            {"Festivals", "spark"}}};

struct Achievement {
  int64_t id = 0;
  GoalKind kind = GoalKind::wealth;
  std::string_view icon;
  std::string_view title;
  std::string_view description;  ///< one that ends in "of" or "least" leaves the amount to be told
  int64_t amount = 0;            ///< 0 for what either happens or does not
  Measure measure = nullptr;     ///< nullptr: granted in the moment it happens and never looked for
  bool dollars = false;          ///< the amount is money

  /// The description with its amount.
  std::string task() const;
  /// An amount of what it counts: "8.7M", "$4.2M".
  std::string amountText(double amount) const;
};

/// All of them, those of a kind together.
std::span<const Achievement> achievements();
/// nullptr for none.
const Achievement* achievementWithId(int64_t id);

bool isCompleted(const GameState& state, int64_t id);
/// How many of the goals that there are.
int64_t completedCount(const GameState& state);

/// How many goals are reached and wait for `completeReached`. Looking for them walks all of a career, so it is done
/// once in four weeks; what is reached in between is counted late. What may be over by then is looked for each week.
int64_t goalsToCollect(const Game& game);

/// Looks for every goal that is still open, and completes and saves those that are reached. Answers with them.
std::vector<const Achievement*> completeReached(Game& game);

}  // namespace backbeat
