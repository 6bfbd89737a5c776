#include "shell/simulate/family_habits.h"

#include <string>

#include "core/purse.h"
#include "life/children.h"
#include "life/engagement.h"
#include "life/parenthood.h"
#include "life/partner.h"
#include "life/takeover.h"

namespace backbeat {

namespace {

constexpr double closeEnough = 92;
constexpr int64_t charming = 15;  ///< before that nearly nobody likes back
constexpr int64_t weeksBetweenLessons = 3;
constexpr const char* givenName = "Juno";

const Matches* partnerOf(const GameState& state) {
  const auto position = partnerPosition(state);
  return position ? &state.saveAllMatchesList[*position] : nullptr;
}

void openApp(Player& player, const char* way) {
  player.tab(lifeTab);
  player.press("goToFXYDating");
  player.press(way);
}

void askOut(Player& player) {
  const RecordList<Matches>& matches = player.state().saveAllMatchesList;
  const size_t waiting = matches.find([](const Matches& match) { return match.relationshipState == love::matched; });
  const std::string row = "match:" + std::to_string(matches[waiting].matchId);
  openApp(player, "goToFxyMatchList");
  player.press(row);
  player.press("askOutButton");
  player.settle();
}

void swipe(Player& player, const FamilyPlan& plan) {
  openApp(player, "goToFXYMatching");
  const std::string deck(player.seen().screen);
  for (int64_t i = 0; i < plan.swipes && player.seen().screen == deck; ++i) {
    if (player.state().totalEnergyAvailable <= plan.energyKept) return;
    player.press("heartButton");
    player.settle();  // a like can be a goal of its own
  }
  if (player.tryPress("messageButton")) player.settle();
}

void spendTime(Player& player, const FamilyPlan& plan) {
  constexpr const char* things[] = {"qualityTime", "serenade", "compliment"};
  for (int64_t i = 0; i < plan.dates; ++i) {
    const Matches* partner = partnerOf(player.state());
    if (!partner || partner->relationshipStatus > closeEnough) return;
    if (player.state().totalEnergyAvailable <= plan.energyKept) return;
    player.press(things[static_cast<size_t>(i) % std::size(things)]);
    player.settle();
  }
}

bool wantsChild(const GameState& state, const Matches& partner, const FamilyPlan& plan) {
  if (!isMarried(partner) || childrenInFamily(state) >= plan.children) return false;
  return !fertilityBlocked(state) || hasCash(state, adoptionCost);
}

/// A proposal, a wedding, a child or nothing.
void takeNextStep(Player& player, const FamilyPlan& plan) {
  const GameState& state = player.state();
  const Matches* partner = partnerOf(state);
  if (!partner || partner->timeToBirth >= 0) return;
  if (!wantsChild(state, *partner, plan) && !mayTakeNextStep(state, *partner)) return;
  const bool isWedding = partner->relationshipState == love::engaged;
  player.press("mainAction");
  if (isWedding) player.answer(1);
  if (player.tryPress("adoptButton")) return player.settle();
  if (player.tryPress("ring:0")) {
    player.settle();
    if (partnerOf(player.state())->relationshipState == love::dating) player.back();  // the cash did not reach
  }
  player.settle();
}

/// The size of the list when there is none.
size_t heirOfAge(const GameState& state, int64_t age) {
  return state.saveAllChildList.find(
      [&](const Child& child) { return mayTakeOver(state, child) && ageOf(state, child) >= age; });
}

void openChild(Player& player, size_t index) {
  player.tab(lifeTab);
  player.press("goToChildList");
  player.press("child:" + std::to_string(index));
}

}  // namespace

void liveWithFamily(Player& player, const FamilyPlan& plan, int64_t week) {
  if (player.state().charisma >= charming) lookForLove(player, plan);
  lookAfterPartner(player, plan);
  if (week % weeksBetweenLessons == 0) raiseChildren(player);
}

void lookForLove(Player& player, const FamilyPlan& plan) {
  if (partnerPosition(player.state())) return;
  if (matchesWaiting(player.state()) > 0) return askOut(player);
  if (player.state().totalEnergyAvailable > plan.energyKept) swipe(player, plan);
}

void lookAfterPartner(Player& player, const FamilyPlan& plan) {
  if (!partnerPosition(player.state())) return;
  player.tab(lifeTab);
  player.press("goToRelationshipHome");
  spendTime(player, plan);
  takeNextStep(player, plan);
}

void raiseChildren(Player& player) {
  const RecordList<Child>& children = player.state().saveAllChildList;
  for (size_t i = 0; i < children.size(); ++i) {
    if (!isInFamily(children[i]) || ageOf(player.state(), children[i]) > ageOfMajority) continue;
    openChild(player, i);
    if (children[i].name == newbornName) {
      player.press("goToEditChildName");
      player.press("name", givenName);
      player.press("saveButton");
      player.settle();
    }
    for (const char* action : {"playMusic", "complimentChild"}) {
      player.press(action);
      player.settle();
    }
  }
}

bool heirWaits(const GameState& state, int64_t age) { return heirOfAge(state, age) != state.saveAllChildList.size(); }

bool retire(Player& player, int64_t age) {
  const GameState& state = player.state();
  const size_t heir = heirOfAge(state, age);
  if (state.totalEnergyAvailable < takeoverEnergy || heir == state.saveAllChildList.size()) return false;
  openChild(player, heir);
  player.press("goToTakeOverDetail");
  player.press("playAsButton");
  player.answer(1);
  player.settle();
  return true;
}

}  // namespace backbeat
