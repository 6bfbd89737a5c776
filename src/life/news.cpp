#include "life/news.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/own_photo.h"
#include "life/partner.h"

namespace backbeat {

namespace {

using Kind = News::Kind;

constexpr double lonelyBelow = 15;  ///< of the relationship: a few weeks are left

void addMatchNeed(const GameState& state, std::vector<Need>& needs) {
  const size_t waiting = matchesWaiting(state);
  if (waiting == 0) return;
  needs.push_back(
      {.priority = 110,
       .picture = icon("message"),
       .title = waiting == 1 ? "Somebody likes you back" : std::to_string(waiting) + " people like you back",
       .subtitle = "Ask them out",
       .segue = "goToFxyMatchList"});
}

void addFirstMatch(const GameState& state, int64_t week, std::vector<News>& news) {
  // Whoever says no is forgotten, but the ids go on.
  constexpr int64_t firstId = 1;
  const auto position = matchPosition(state, firstId);
  if (!position || state.saveAllMatchesList[*position].weekMatched != week) return;
  const Matches& match = state.saveAllMatchesList[*position];
  news.push_back({.kind = Kind::first,
                  .rank = 310,
                  .key = "first match",
                  .picture = faceOf(match),
                  .kicker = "Your first match",
                  .headline = "You and " + match.name + " liked each other",
                  .text = match.matchTagline});
}

void addNewPartner(const GameState& state, int64_t week, std::vector<News>& news) {
  const auto position = partnerPosition(state);
  if (!position || state.saveAllMatchesList[*position].weekStartedDating != week) return;
  const Matches& partner = state.saveAllMatchesList[*position];
  const auto everDated = [&](const Matches& match) {
    return match.matchId != partner.matchId && match.relationshipState != love::matched;
  };
  const bool isFirst = state.saveAllMatchesList.find(everDated) == state.saveAllMatchesList.size();
  news.push_back({.kind = isFirst ? Kind::first : Kind::reached,
                  .rank = isFirst ? 510 : 420,
                  .key = "partner",
                  .picture = faceOf(partner),
                  .kicker = isFirst ? "Your first love" : "It's official",
                  .headline = "You and " + partner.name + " are together",
                  .text = "+" + std::to_string(partner.energyBonus) + " energy, every week that it lasts"});
}

}  // namespace

void addLifeNeeds(const Game& game, std::vector<Need>& needs) {
  const auto position = partnerPosition(game.state);
  if (!position) return addMatchNeed(game.state, needs);
  const Matches& partner = game.state.saveAllMatchesList[*position];
  if (partner.relationshipStatus >= lonelyBelow) return;
  needs.push_back({.priority = 220,
                   .picture = faceNow(game.state, partner),
                   .title = partner.name + " feels forgotten",
                   .subtitle = "Spend some time together",
                   .segue = "goToFxyMatchList"});
}

void addLifeNews(const Game& game, std::vector<News>& news) {
  const int64_t week = game.turn.before.absoluteWeek;
  addFirstMatch(game.state, week, news);
  addNewPartner(game.state, week, news);
}

}  // namespace backbeat
