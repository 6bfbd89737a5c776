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

Child childOf(const GameState& state, const std::string& name, int64_t years) {
  Child child;
  child.name = name;
  child.birthYear = state.yearNumber - years;
  child.birthWeek = state.weekNumber;
  child.birthWeekForTracking = state.weekNumberForTracking - years * 52;
  child.relationship = "Son";
  child.artistName = "Mara Voss";
  child.partnerName = "Ines";
  child.weeklyEnergyCost = 7;
  child.weeklyFinancialCost = 120;
  child.imageString = years > 12 ? "maleteenw2.png" : "malechildw4.png";
  child.songWriting = 24;
  child.virality = -4;
  child.vocals = 31;
  child.rhythm = 9;
  child.charisma = 18;
  child.totalEnergyMax = 120;
  child.admiration = 82;
  child.weeklyAdmirationLoss = 0.5;
  child.typeOfRelationship = 1;
  child.ageofDeath = 80;
  if (years > 18) {
    child.weeklyEnergyCost = 0;
    child.weeklyFinancialCost = 0;
    child.occupation = "Nurse";
  }
  return child;
}

int64_t addChild(GameState& state, Child child) {
  child.id = ++state.childId;
  state.childEnergyCost += child.weeklyEnergyCost;
  state.saveAllChildList.append(std::move(child));
  return static_cast<int64_t>(state.saveAllChildList.size()) - 1;
}

Legacy ancestor(const std::string& name, int64_t yearBorn, int64_t yearPassed) {
  Legacy legacy;
  legacy.name = name;
  legacy.imageString = name;
  legacy.yearBorn = yearBorn;
  legacy.yearPassed = yearPassed;
  legacy.netWorth = 48'200'000;
  legacy.numOfSongs = 214;
  legacy.numOfAlbums = 12;
  legacy.numOfTours = 3;
  legacy.biggestTourName = "Paper Moons";
  legacy.biggestTourSeatsSold = 92'000;
  legacy.biggestSong = "Velvet Rivers";
  legacy.biggestSongStreams = 812'000'000;
  legacy.biggestAlbum = "Northern Lights";
  legacy.biggestAlbumSold = 6'100'000;
  legacy.diamondCertifications = 1;
  legacy.spotifyBio = name + " • Musician";
  legacy.causeOfDeath = "Passed away peacefully";
  legacy.numberOfBillboardHits = 31;
  legacy.numberOfBillboardNumberOnes = 17;
  legacy.longestBillboardNumberOne = 9;
  legacy.longestBillboardNumberOneTitle = "Velvet Rivers";
  legacy.longestBillboardWeeksOnCharts = 44;
  legacy.longestBillboardWeeksOnChartsTitle = "Amber Static";
  legacy.numberOfChildren = 3;
  legacy.numberOfAwards = 2;
  legacy.awardsWon = {"Record of the Year (2041)", "Song of the Year (2044)"};
  legacy.successorBirthYear = yearPassed - 30;
  return legacy;
}

}  // namespace backbeat
