#include "life/match_list.h"

#include <algorithm>

#include "core/calendar.h"
#include "life/dating_pools.h"
#include "life/endings.h"
#include "life/partner.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

constexpr double perfectRating = 10;

/// The partner saw it.
Outcome caughtSliding(Game& game, size_t partnerAt, const std::string& withWhom) {
  RecordList<Matches>& matches = game.state.saveAllMatchesList;
  const int64_t hit = 15 + game.random.integer(0, 25);
  matches.update(partnerAt, [&](Matches& partner) { partner.relationshipStatus -= static_cast<double>(hit); });
  game.save(&GameState::saveAllMatchesList);
  if (matches[partnerAt].relationshipStatus < 0) {
    return partnerLeaves(game, std::string(game.random.element(breakupLines)), caughtWithAnother);
  }
  stateChanged(game);
  return news<"😬 Uh Oh 😬">("\n" + matches[partnerAt].name + " saw you sliding into " + withWhom +
                               "'s DMs...\n\nYour relationship took a hit (-" + std::to_string(hit) + ").",
                           Feedback::warning);
}

Outcome saysYes(Game& game, size_t position) {
  GameState& state = game.state;
  state.saveAllMatchesList.update(position, [&](Matches& match) {
    match.relationshipState = love::dating;
    match.weekStartedDating = state.weekNumberForTracking;
  });
  const Matches& partner = state.saveAllMatchesList[position];
  state.totalEnergyMax += partner.energyBonus;
  game.save(&GameState::saveAllMatchesList, &GameState::totalEnergyMax);
  if (exactRating(partner) >= perfectRating) grantAchievement(game, achievement::perfectPartner);
  std::string post(game.random.element(relationshipChirps));
  if (const size_t star = post.find('*'); star != std::string::npos) post.replace(star, 1, state.myArtistsName);
  postChirpForMatch(game, partner, "♥️ It's Official ♥️ " + post);
  return news<"♥️ It's Official ♥️">(
      "\n" + partner.name + " said 'YES!' and you had a great time. " + partner.name +
      " makes you feel like you can conquer the world.\n\nYour weekly energy has been "
      "increased by +" +
      std::to_string(partner.energyBonus));
}

Outcome saysNo(Game& game, size_t position) {
  GameState& state = game.state;
  const std::string answer = state.saveAllMatchesList[position].pickupLineResponse;
  state.rejectionCount += 1;
  state.saveAllMatchesList.erase(position);
  game.save(&GameState::rejectionCount, &GameState::saveAllMatchesList);
  return news(alertTitle<"❌ * ❌", "turned down">.with(answer), "\n" + std::string(game.random.element(rejectionLines)),
              Feedback::warning);
}

}  // namespace

void sortMatches(Game& game) {
  RecordList<Matches>& matches = game.state.saveAllMatchesList;
  const auto isBehind = [](const Matches& a, const Matches& b) { return a.relationshipState > b.relationshipState; };
  if (std::is_sorted(matches.begin(), matches.end(), isBehind)) return;
  matches.sortDescending(&Matches::relationshipState);
  game.save(&GameState::saveAllMatchesList);
}

Outcome openMatchRow(Game& game, int64_t matchId) {
  const RecordList<Matches>& matches = game.state.saveAllMatchesList;
  const auto position = matchPosition(game.state, matchId);
  if (!position) return {};
  const auto partner = partnerPosition(game.state);
  if (partner && matches[*position].relationshipState != love::matched) {
    // Of somebody from the past it says the same: intended.
    Outcome outcome =
        news<"❤️ It's Official ❤️">("\n" + matches[*partner].name + " makes you feel on top of the world!");
    outcome.alerts.front().buttons.front().label = "💋";
    return outcome;
  }
  if (partner && game.random.coin() == 0) return caughtSliding(game, *partner, matches[*position].name);
  return goTo("goToYouMatchedWith", std::to_string(matchId));
}

bool canAskOut(const Matches& match) { return match.relationshipState == love::matched; }

Outcome askOut(Game& game, int64_t matchId) {
  const auto position = matchPosition(game.state, matchId);
  if (!position || !canAskOut(game.state.saveAllMatchesList[*position])) return {};
  game.state.slideIntoDmsCount += 1;
  game.save(&GameState::slideIntoDmsCount);
  const bool isYes = game.state.saveAllMatchesList[*position].interested == 0;
  Outcome outcome = isYes ? saysYes(game, *position) : saysNo(game, *position);
  stateChanged(game);
  outcome += closeScreen();
  return outcome;
}

}  // namespace backbeat
