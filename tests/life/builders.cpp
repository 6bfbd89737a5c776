#include "life/builders.h"

#include <utility>

namespace backbeat {

Matches somebody(const GameState& state, const std::string& name) {
  Matches match;
  match.name = name;
  match.matchImage = "man12.png";
  match.matchTagline = "Will cook if you do the dishes.";
  match.matchPickupLine = "Are you Siri? Because you autocomplete me.";
  match.pickupLineResponse = "😊";
  match.occupation = "Physical Therapist";
  match.interests = {"Sailing", "Board Games", "Coffee"};
  match.weekMatched = state.weekNumberForTracking;
  match.weekEndedDating = -1;
  match.energyBonus = 14;
  match.relationshipStatus = 52;
  match.age = 29;
  match.chemistry = 54;
  match.beauty = 70;
  match.intelligence = 80;
  match.personality = 75;
  match.maintenance = 45;
  match.weeklyEarnings = 1'750;
  match.timeToPropose = 60;
  match.timeToBirth = -1;
  return match;
}

int64_t addMatch(GameState& state, Matches match) {
  match.matchId = ++state.matchId;
  state.saveAllMatchesList.append(std::move(match));
  return state.matchId;
}

int64_t addPartner(GameState& state, Matches match, int64_t relationshipState, int64_t weeks) {
  match.relationshipState = relationshipState;
  match.weekMatched = match.weekStartedDating = state.weekNumberForTracking - weeks;
  state.totalEnergyMax += match.energyBonus;
  return addMatch(state, std::move(match));
}

}  // namespace backbeat
