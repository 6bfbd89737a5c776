#include "life/endings.h"

#include "core/calendar.h"
#include "core/case_folding.h"
#include "core/money.h"
#include "core/purse.h"
#include "core/short_money.h"
#include "life/partner.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

constexpr int64_t firstAskCost = 5;

void endOne(GameState& state, size_t position, const std::string& line) {
  state.saveAllMatchesList.update(position, [&](Matches& match) {
    match.relationshipState = love::ended;
    match.weekEndedDating = state.weekNumberForTracking;
    match.breakupLine = line;
  });
}

/// How it ends: with which words, how many points of drama, and whether for everybody.
struct End {
  const std::string& line;
  int64_t drama;
  bool endsAll = false;
};

/// Takes the bonus of the partner at `position` with the points of drama, and in a divorce the settlement. Of two
/// partners only the first one's bonus goes: intended.
void end(Game& game, size_t position, const End& how) {
  GameState& state = game.state;
  const Matches partner = state.saveAllMatchesList[position];
  if (isMarried(partner)) {
    if (const double share = settlement(state); share != 0) earn(game, {.dollars = -share});
    state.signPrenup = 0;
  }
  endOne(state, position, how.line);
  while (how.endsAll && partnerPosition(state)) endOne(state, *partnerPosition(state), how.line);
  state.totalEnergyMax -= partner.energyBonus + how.drama;
  state.energyLossExDrama += how.drama;
  state.askForMoneyEnergyCost = firstAskCost;
  game.save(&GameState::saveAllMatchesList, &GameState::totalEnergyMax, &GameState::energyLossExDrama,
            &GameState::askForMoneyEnergyCost, &GameState::signPrenup);
  stateChanged(game);
}

Outcome told(Outcome outcome, const char* button) {
  outcome.alerts.front().buttons.front().label = button;
  return outcome;
}

Outcome divorceNews(const GameState& state, const Matches& partner, const Reproach& reproach, bool prenup,
                    double share) {
  // The bonus that is told is less than what is taken: intended.
  const std::string loss = "\n\nYou lost your energy bonus of " + std::to_string(partner.energyBonus) +
                           " and an additional -2 for all the trauma a divorce will be causing you...";
  const std::string reason = "\n" + state.myArtistsName + ", I can't keep living like this with you " +
                             std::string(reproach.offence) + "I signed the divorce papers today and ";
  const std::string end = prenup ? "even though we signed a prenup, " + std::string(reproach.waiver)
                                 : "will be taking my share (" + settlementText(share) +
                                       ") of what WE built in cash!\n\nIf you do not have the cash on hand, you will "
                                       "take a negative balance.";
  return told(news<"🤬 I WANT A DIVORCE!🤬">(reason + end + loss, Feedback::warning), "✍️");
}

}  // namespace

double settlement(const GameState& state) { return state.signPrenup >= 1 ? 0 : netAssets(state) * 0.5; }

std::string settlementText(double dollars) { return abbreviatedDollars(dollars); }

Outcome partnerLeaves(Game& game, const std::string& line, const Reproach& reproach) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  const Matches partner = game.state.saveAllMatchesList[*position];
  const bool prenup = game.state.signPrenup >= 1;
  const double share = settlement(game.state);
  end(game, *position, {line, isMarried(partner) ? divorceDrama : 1, reproach.endsAll});
  if (isMarried(partner)) return divorceNews(game.state, partner, reproach, prenup, share);
  return told(
      news(alertTitle<"*!🤬", "left">.with(upperCase(game.state.myArtistsName)),
           "\n'" + line + ".'\n\n-" + partner.name + std::string(reproach.face) + "\n\n" + std::string(reproach.blame) +
               " lost your energy bonus of " + std::to_string(partner.energyBonus) +
               " and an additional -1 for all the drama your now ex will be causing you.",
           Feedback::warning),
      "💔");
}

void leavePartner(Game& game, const Parting& parting) {
  const auto position = partnerPosition(game.state);
  if (!position) return;
  const bool wasMarried = isMarried(game.state.saveAllMatchesList[*position]);
  end(game, *position, {parting.line, wasMarried ? divorceDrama : parting.drama});
}

}  // namespace backbeat
