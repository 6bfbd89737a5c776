#include "life/children.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/money.h"
#include "core/text.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfYear = 52;
constexpr int64_t weeksOfMonth = 4;
constexpr int64_t walksFrom = 2;  ///< years, here and below
constexpr int64_t grownFrom = 20;
constexpr int64_t elderlyFrom = 60;

/// The last age at which a school is gone to.
struct School {
  int64_t lastAge;
  const char* name;
};
constexpr School schools[] = {{2, ""},
                              {4, "Preschool"},
                              {5, "Kindergarten"},
                              {10, "Elementary School"},
                              {13, "Middle School"},
                              {17, "High School"}};

bool shows(const Child& child, const char* kind) { return child.imageString.find(kind) != std::string::npos; }

const char* formOf(const GameState& state, const Child& child) {
  const bool isGirl = child.gender == daughter;
  const int64_t age = ageOf(state, child);
  if (shows(child, "child")) {
    if (age < walksFrom) return "baby";
    return isGirl ? "girl" : "boy";
  }
  if (age < grownFrom) return isGirl ? "teenGirl" : "teenBoy";
  if (age < elderlyFrom) return isGirl ? "woman" : "man";
  return isGirl ? "oldWoman" : "oldMan";
}

/// Who it is, whom it takes after, and how: a line each.
std::string looksOf(const Child& child) {
  const bool isLight = shows(child, "childw") || shows(child, "teenw");
  return std::to_string(child.birthWeekForTracking) + " " + std::to_string(child.gender) + " " +
         std::to_string(child.ageofDeath) + "\n" + child.artistName + " " + child.partnerName + "\n" +
         (isLight ? "light" : "dark");
}

}  // namespace

std::optional<size_t> childPosition(const GameState& state, int64_t index) {
  if (index < 0 || static_cast<size_t>(index) >= state.saveAllChildList.size()) return std::nullopt;
  return static_cast<size_t>(index);
}

bool isInFamily(const Child& child) { return child.typeOfRelationship > 0; }

int64_t childrenInFamily(const GameState& state) {
  return std::count_if(state.saveAllChildList.begin(), state.saveAllChildList.end(), isInFamily);
}

bool mayTakeOver(const GameState& state, const Child& child) {
  return isInFamily(child) && ageOf(state, child) >= ageOfMajority;
}

int64_t ageOf(const GameState& state, const Child& child) {
  if (child.typeOfRelationship == kinship::dead) return child.ageofDeath;
  return state.yearNumber - child.birthYear;
}

std::string ageText(const GameState& state, const Child& child) {
  const int64_t weeks = state.weekNumberForTracking - child.birthWeekForTracking;
  if (weeks < weeksOfYear && child.typeOfRelationship != kinship::dead) {
    return std::to_string(weeks / weeksOfMonth) + " months old";
  }
  const int64_t years = std::max<int64_t>(ageOf(state, child), 1);
  return std::to_string(years) + (years == 1 ? " year old" : " years old");
}

std::string schoolOf(const GameState& state, const Child& child) {
  const int64_t age = ageOf(state, child);
  const auto school =
      std::find_if(std::begin(schools), std::end(schools), [&](const School& each) { return age <= each.lastAge; });
  return school == std::end(schools) ? "" : school->name;
}

std::string standingText(const GameState& state, const Child& child) {
  if (child.typeOfRelationship == kinship::dead) return "died at " + std::to_string(child.ageofDeath);
  if (!isInFamily(child)) return "abandoned";
  return ageOf(state, child) > ageOfMajority ? "left home" : ageText(state, child);
}

bool raiseTalent(Child& child, int64_t Child::*level) {
  if (child.*level >= mostTalent) return false;
  child.*level += 1;
  return true;
}

void endUpkeep(GameState& state, Child& child) {
  state.childEnergyCost -= child.weeklyEnergyCost;
  child.weeklyEnergyCost = 0;
  child.weeklyFinancialCost = 0;
}

void admire(Child& child, double points) {
  child.admiration = std::clamp(child.admiration + points, 0.0, mostAdmiration);
}

Picture portraitOf(const GameState& state, const Child& child) {
  return drawn(Picture::Kind::person, formOf(state, child), looksOf(child));
}

std::string grownPortrait(const Child& child) {
  return std::string(child.gender == daughter ? "woman" : "man") + ":" + looksOf(child);
}

void renameChild(Game& game, int64_t index, const std::string& name) {
  const auto position = childPosition(game.state, index);
  const std::string chosen = firstCharacters(trimmed(name), longestChildName);
  if (!position || chosen.empty()) return;
  game.state.saveAllChildList.update(*position, [&](Child& child) { child.name = chosen; });
  game.save(&GameState::saveAllChildList);
  stateChanged(game);
}

}  // namespace backbeat
