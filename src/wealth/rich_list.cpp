#include "wealth/rich_list.h"

#include <algorithm>

#include "core/money.h"
#include "core/numbers.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

constexpr double greatestFortune = 151'000'000'000.0;
constexpr double smallestShare = 0.01;

}  // namespace

std::string worldRank(double netAssets) {
  const double share = netAssets / greatestFortune;
  if (share < smallestShare) return "Unranked";
  if (netAssets > greatestFortune) return "#1";
  return rank(truncate((1 - share) * 100));
}

std::string sourceOfWealth(const GameState& state) {
  std::string source = state.isLabelLaunched >= 1 ? "Musician and Founder" : "Musician";
  if (!state.saveAllInvestmentPropertyList.empty()) source += ", Real Estate";
  if (!state.saveAllVentureInvestments.empty()) source += ", Investor";
  if (state.ageAtTakeover > 0) source += ", Inheritance";
  return source;
}

int64_t selfMadeScore(const GameState& state) {
  if (state.ageAtTakeover <= 0) return 10;
  return std::max(10 - 3 * static_cast<int64_t>(state.saveAllLegacyList.size()), int64_t{1});
}

int64_t philanthropyScore(const GameState& state) { return 1 + std::min(int64_t{4}, state.charisma / 25); }

std::string maritalStatus(const GameState& state) {
  int64_t standing = 0;
  for (const Matches& match : state.saveAllMatchesList) standing = std::max(standing, match.relationshipState);
  if (standing <= 0) return "Single";
  if (standing == 1) return "Dating";
  if (standing == 2) return "Engaged";
  const auto& children = state.saveAllChildList;
  const bool hasKids =
      children.find([](const Child& child) { return child.typeOfRelationship >= 1; }) != children.size();
  return hasKids ? "Married with Kids" : "Married";
}

RichListVisit visitRichList(Game& game) {
  double& last = game.state.netWorthSinceLastChecked;
  const double netWorth = netAssets(game.state);
  const RichListVisit visit{.netWorth = netWorth, .change = netWorth - last, .isFirst = last == 0};
  last = netWorth;
  game.save(&GameState::netWorthSinceLastChecked);
  return visit;
}

}  // namespace backbeat
