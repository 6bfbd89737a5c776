#include "life/relationship_events.h"

#include "life/dating_pools.h"
#include "life/endings.h"
#include "life/parenthood.h"
#include "life/partner.h"
#include "life/relationship_pools.h"

namespace backbeat {

namespace {

/// A week nearer to the birth, which comes in the week that begins with none left: then the work begins.
void carry(Game& game, size_t position) {
  RecordList<Matches>& matches = game.state.saveAllMatchesList;
  const int64_t weeks = matches[position].timeToBirth;
  if (weeks < 0) return;
  if (weeks == 0) becomeParentByBirth(game, matches[position]);
  const int64_t harder = weeks == 0 ? game.random.integer(5, 25) : 0;
  matches.update(position, [&](Matches& partner) {
    partner.timeToBirth = weeks - 1;
    partner.maintenance += harder;
  });
}

/// What a week takes without anybody doing anything.
void wearAway(Game& game, size_t position) {
  game.state.saveAllMatchesList.update(position, [](Matches& partner) {
    partner.relationshipStatus -= static_cast<double>(partner.maintenance) / 100;
    if (partner.timeToBirth >= 1) partner.relationshipStatus -= 1;
  });
}

std::string handleOf(std::string name) {
  std::erase(name, ' ');
  return "@" + name;
}

Outcome dies(Game& game, const Matches& partner) {
  const std::string line(game.random.element(breakupLines));
  if (!isMarried(partner)) postChirpForMatch(game, partner, "💔 " + line + " " + handleOf(game.state.myArtistsName));
  return partnerLeaves(game, line, leftAlone);
}

}  // namespace

Outcome runRelationshipEvents(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  carry(game, *position);
  wearAway(game, *position);
  game.save(&GameState::saveAllMatchesList);
  const Matches partner = game.state.saveAllMatchesList[*position];
  if (partner.relationshipStatus < 0) return dies(game, partner);
  constexpr int64_t talkative = 5;
  if (game.random.integer(0, 10) == talkative) {
    postChirpForMatch(game, partner, std::string(game.random.element(generalChirps)));
  }
  return {};
}

}  // namespace backbeat
