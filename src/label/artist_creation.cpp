#include "label/artist_creation.h"

#include "career/skill.h"
#include "career/studio.h"
#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "core/text.h"
#include "label/departments.h"
#include "label/scouting.h"

namespace backbeat {

namespace {

constexpr int64_t pointsOfStep = 2;

}  // namespace

Outcome beginArtist(Game& game) {
  if (scoutingBounds(game.state).scouts > 0) return {};
  return refuse<"🗂 A&R Needed 🗂">("\nYou need to have at least 1 A&R employee to create an artist.");
}

int64_t totalTraitPoints(const GameState& state) {
  const DepartmentStanding scouts = departmentRatings(state).departments[department::artistsAndRepertoire];
  return 5 * ((scouts.ratings + 2 * state.businessTrait4) / (scouts.staff + 1));
}

bool canStepPoint(const ArtistIdea& idea, const ArtistPoint& point, int64_t way) {
  const int64_t value = idea.artist.*point.value;
  if (way == 1) return idea.remaining >= pointsOfStep && value < point.mostToRaise;
  return way == -1 && value >= pointsOfStep;
}

void stepPoint(ArtistIdea& idea, const ArtistPoint& point, int64_t way) {
  if (!canStepPoint(idea, point, way)) return;
  idea.artist.*point.value += way * pointsOfStep;
  idea.remaining -= way * pointsOfStep;
}

Outcome createArtist(Game& game, const ArtistIdea& idea) {
  const ScoutedArtist& artist = idea.artist;
  if (trimmed(artist.name).empty()) {
    return refuse<"🔥 Enter a Name 🔥">("\nChoose a name before you can create an artist.");
  }
  if (!hasEnergy(game.state, createArtistCost)) {
    return noEnergy("\nYou do not have enough energy to create an artist.");
  }
  pay(game, createArtistCost);
  CreatedArtist created;
  created.name = artist.name;
  created.charisma = artist.charisma;
  created.rhythm = artist.rhythm;
  created.songwriting = artist.songwriting;
  created.virality = artist.virality;
  created.vocals = artist.vocals;
  created.talent = artist.talent;
  created.monthlyListeners = drawListeners(game.random, ratingOf(artist));
  const double viralityRoll = drawViralityRoll(game.random, artist.virality);
  created.demoRating = truncate(demoRating(game.random, studioRating(game.state), artist, viralityRoll));
  game.state.saveAllCreatedArtists.append(std::move(created));
  game.save(&GameState::saveAllCreatedArtists);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
