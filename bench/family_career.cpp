#include "family_career.h"

#include <algorithm>
#include <vector>

#include "life/child_actions.h"
#include "life/children.h"
#include "life/dating.h"
#include "life/engagement.h"
#include "life/match_list.h"
#include "life/parenthood.h"
#include "life/partner.h"
#include "life/relationship.h"
#include "life/takeover.h"
#include "recognition/music_awards.h"
#include "turn/pruning.h"
#include "wealth/garage.h"
#include "wealth/real_estate.h"
#include "wealth/venture_rounds.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfAMonth = 4;
constexpr int64_t weeksOfAYear = 52;
constexpr int64_t weeksOfAMarriage = 10 * weeksOfAYear;
constexpr int64_t weeksBetweenChildren = 3 * weeksOfAYear;
constexpr int64_t weeksBetweenHomes = 26;
constexpr double closeEnough = 90;

void rest(GameState& state) { state.totalEnergyAvailable = state.totalEnergyMax; }

/// Writes to one who likes back, and asks out whoever waits while nobody is there.
void meetSomebody(Game& game) {
  drawMatchCandidate(game);
  while (game.launch.dating.pendingMatch.name.empty()) {
    rest(game.state);
    swipe(game, Swipe::heart);
  }
  createMatchRecord(game);
  if (partnerPosition(game.state)) return;
  askOut(game, game.state.matchId);
  sortMatches(game);  // as the list does when it is seen
}

/// By birth while the two can, else adopted, whatever it takes.
void wishForAChild(Game& game) {
  if (fertilityBlocked(game.state)) {
    adopt(game, drawAdoption(game));
  } else {
    mainAction(game);
  }
}

void liveAsACouple(Game& game) {
  const size_t position = *partnerPosition(game.state);
  const Matches partner = game.state.saveAllMatchesList[position];
  if (partner.relationshipStatus < closeEnough) serenade(game);
  if (partner.relationshipState == love::dating) propose(game, 0);
  if (partner.relationshipState == love::engaged) wed(game, true);
  if (!isMarried(partner) || partner.timeToBirth >= 0) return;
  const RecordList<Child>& children = game.state.saveAllChildList;
  const int64_t now = game.state.weekNumberForTracking;
  if (children.empty() || now - children.back().birthWeekForTracking > weeksBetweenChildren) wishForAChild(game);
  if (weeksTogether(game.state, partner) > weeksOfAMarriage) breakup(game);
}

void teach(Game& game) {
  const RecordList<Child>& children = game.state.saveAllChildList;
  for (size_t i = 0; i < children.size(); ++i) {
    const auto index = static_cast<int64_t>(i);
    if (isInFamily(children[i]) && ageOf(game.state, children[i]) < ageOfMajority) playMusic(game, index);
  }
}

/// The first who is of age goes on; nobody after that.
void handOver(Game& game) {
  if (!game.state.saveAllLegacyList.empty()) return;
  const RecordList<Child>& children = game.state.saveAllChildList;
  const size_t heir = children.find([&](const Child& child) { return mayTakeOver(game.state, child); });
  if (heir != children.size()) takeOver(game, static_cast<int64_t>(heir));
}

/// Another home, or, when all are owned, one less.
void tradeHomes(Game& game) {
  const std::vector<const Property*> listed = listedProperties(game.state);
  if (listed.empty()) {
    sellProperty(game, game.state.saveAllInvestmentPropertyList[0].propertyId);
  } else {
    buyProperty(game, *listed.front());
  }
}

void tradeVehicles(Game& game) {
  const auto missing = std::find_if(vehicles.begin(), vehicles.end(), [&](const TransportationOption& option) {
    return !vehiclePosition(game.state, option.id);
  });
  if (missing == vehicles.end()) {
    sellVehicle(game, game.state.saveAllTransportationOwnedList[0].id);
  } else {
    buyVehicle(game, *missing);
  }
}

/// Every other round is left to the others; the portfolio begins anew once nobody in it is left.
void backStartups(Game& game) {
  auto& ventures = game.state.saveAllVentureInvestments;
  if (ventures.size() < companies.size()) {
    const auto asking = std::find_if(companies.begin(), companies.end(), [&](const Company& company) {
      return !venturePosition(game.state, company.businessId);
    });
    const FundingOffer pitch = drawPitch(game.random, *asking);
    invest(game, pitch, pitch.percent);
  }
  for (size_t i = 0; i < ventures.size(); ++i) {
    if (!isRoundDue(ventures[i])) continue;
    const FundingOffer offer = drawRaise(game.random, ventures[i]);
    if (offer.round % 2 == 0) {
      passRound(game, offer);
    } else {
      invest(game, offer, std::max<int64_t>(offer.percent / 2, 1));
    }
  }
  if (ventures.size() == companies.size() && std::none_of(ventures.begin(), ventures.end(), isRunning)) {
    resetStartups(game);
  }
}

}  // namespace

void liveFamilyWeek(Game& game) {
  GameState& state = game.state;
  const int64_t week = state.weekNumberForTracking;
  rest(state);
  handOver(game);
  if (week % weeksOfAMonth == 0) meetSomebody(game);
  rest(state);
  if (partnerPosition(state)) liveAsACouple(game);
  teach(game);
  rest(state);
  if (week % weeksBetweenHomes == 5) tradeHomes(game);
  if (week % weeksBetweenHomes == 18) tradeVehicles(game);
  if (week % weeksOfAMonth == 1) backStartups(game);
  runNominations(game);
  decideWinners(game);
  rest(state);
  game.save(&GameState::totalEnergyAvailable);
  game.saveFile.commit();
}

std::string familyIn(const GameState& state) {
  const auto many = [](const auto& list, const char* nouns) { return std::to_string(list.size()) + " " + nouns; };
  return "generation " + std::to_string(state.saveAllLegacyList.size() + 1) + "; " +
         many(state.saveAllMatchesList, "matches, ") + many(state.saveAllChildList, "children, ") +
         many(state.saveAllInvestmentPropertyList, "homes, ") +
         many(state.saveAllTransportationOwnedList, "vehicles, ") +
         many(state.saveAllVentureInvestments, "startups, ") + many(state.saveAllMusicAwards, "nominations");
}

}  // namespace backbeat
