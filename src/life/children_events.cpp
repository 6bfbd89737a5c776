#include "life/children_events.h"

#include "life/children.h"
#include "life/dating_pools.h"
#include "life/parenthood_pools.h"

namespace backbeat {

namespace {

constexpr int64_t weekOfAging = 50;
constexpr double admirationForTraining = 75;
constexpr int64_t listenersOfAStar = 25'000;

/// A child who looks up to the artist trains: one week in ten something comes of it.
void train(Child& child, int64_t luck) {
  struct Gift {
    int64_t luck;
    int64_t Child::*talent;
  };
  static constexpr Gift gifts[] = {{10, &Child::charisma},
                                   {20, &Child::rhythm},
                                   {30, &Child::songWriting},
                                   {40, &Child::virality},
                                   {50, &Child::vocals}};
  for (const Gift& gift : gifts) {
    if (gift.luck == luck) raiseTalent(child, gift.talent);
  }
}

/// "femalechildw4.png" becomes "femaleteenw2.png"; a teen stays as it is.
void growIntoTeen(Random& random, Child& child) {
  const size_t kind = child.imageString.find("child");
  if (kind == std::string::npos) return;
  const std::string gender = child.imageString.substr(0, kind);
  const std::string rest = child.imageString.substr(kind + 5);
  const std::string family = rest.starts_with("b") ? "b" : rest.starts_with("w") ? "w" : "";
  const int64_t ofWhites = gender == "female" ? 6 : 5;
  const int64_t pictures = family.empty() ? 3 : family == "b" ? 10 : ofWhites;
  child.imageString = gender + "teen" + family + std::to_string(random.integer(1, pictures)) + ".png";
}

Outcome die(Game& game, Child& child) {
  child.causeOfDeath = game.random.element(causeOfDeathList);
  child.typeOfRelationship = kinship::dead;
  endUpkeep(game.state, child);
  child.totalEnergyMax = 0;
  child.admiration = 0;
  return news<"🕊️ In Loving Memory 🕊️">(
      "\n" + child.name + " has died at the age of " + std::to_string(child.ageofDeath) + ".\n\n" + child.causeOfDeath,
      Feedback::warning);
}

void findWork(Random& random, Child& child) {
  if (child.occupation.empty()) child.occupation = random.element(occupations).title;
}

/// A child that takes energy and is too old for that has not left home yet.
Outcome leaveHome(Game& game, Child& child) {
  if (child.weeklyEnergyCost <= 0) return {};
  endUpkeep(game.state, child);
  return news<"🎓 All Grown Up 🎓">("\n" + child.name + " has left home to work as: " + child.occupation +
                                  ".\n\nThe house is quieter now, and cheaper.");
}

Outcome passWeek(Game& game, Child& child) {
  const GameState& state = game.state;
  admire(child, -child.weeklyAdmirationLoss);
  const int64_t luck = game.random.integer(0, 51);
  if (state.weekNumber == weekOfAging) child.totalEnergyMax -= 1;
  if (child.admiration > admirationForTraining) train(child, luck);
  if (state.totalFans > listenersOfAStar) child.followers += game.random.integer(25, 100);
  const int64_t age = ageOf(state, child);
  if (age >= ageOfTeens) growIntoTeen(game.random, child);
  if (child.ageofDeath <= age) return die(game, child);
  if (age >= ageOfMajority) findWork(game.random, child);
  return age > ageOfMajority ? leaveHome(game, child) : Outcome{};
}

}  // namespace

Outcome weeklyChildUpdate(Game& game) {
  Outcome outcome;
  RecordList<Child>& children = game.state.saveAllChildList;
  for (size_t i = 0; i < children.size(); ++i) {
    if (!isInFamily(children[i])) continue;
    children.update(i, [&](Child& child) { outcome += passWeek(game, child); });
  }
  if (!children.empty()) game.save(&GameState::saveAllChildList, &GameState::childEnergyCost);
  return outcome;
}

}  // namespace backbeat
