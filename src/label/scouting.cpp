#include "label/scouting.h"

#include <string>

#include "career/skill.h"
#include "career/studio.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/name_pools.h"
#include "core/purse.h"
#include "label/departments.h"

namespace backbeat {

namespace {

struct Range {
  int64_t lo = 0;
  int64_t hi = 0;
};

constexpr int64_t lowestMaximum = 10;
constexpr Band<int64_t, int64_t> minimumTraits[] = {{40, 10}, {60, 15}, {80, 20}, {250, 25}};
/// How many are found, by the best trait that there can be; far above the best scouts it is few again: intended.
constexpr Band<int64_t, Range> found[] = {{20, {0, 1}}, {40, {0, 2}}, {60, {0, 3}},
                                          {80, {1, 4}}, {90, {2, 5}}, {250, {3, 7}}};
constexpr Band<int64_t, Range> listenersOf[] = {{20, {1'000, 5'000}},           {40, {5'000, 25'000}},
                                                {60, {25'000, 125'000}},        {75, {125'000, 500'000}},
                                                {90, {500'000, 2'500'000}},     {100, {2'500'000, 10'000'000}},
                                                {150, {10'000'000, 50'000'000}}};

std::string drawName(Random& random) {
  if (random.coin() == 0) {
    const std::string first(random.element(firstNameList));
    return first + " " + std::string(random.element(lastNameList));  // an empty last name leaves its blank: intended
  }
  const std::string first(random.element(rapperFirst));
  return first + " " + std::string(random.element(rapperLast));
}

ScoutedArtist drawArtist(Random& random, const ScoutingBounds& bounds, int64_t studio) {
  const auto trait = [&] { return random.integer(bounds.minTraitRatings, bounds.maxTraitRatings); };
  ScoutedArtist artist;
  artist.name = drawName(random);
  artist.talent = random.integer(1, 90);
  artist.virality = trait();
  artist.charisma = trait();
  artist.vocals = trait();
  artist.songwriting = trait();
  artist.rhythm = trait();
  const double viralityRoll = drawViralityRoll(random, artist.virality);
  artist.demoRating = demoRating(random, studio, artist, viralityRoll);
  artist.monthlyListeners = drawListeners(random, ratingOf(artist));
  return artist;
}

ScoutedArtist asScouted(const CreatedArtist& created, size_t position) {
  return {.name = created.name,
          .songwriting = created.songwriting,
          .vocals = created.vocals,
          .rhythm = created.rhythm,
          .charisma = created.charisma,
          .virality = created.virality,
          .talent = created.talent,
          .monthlyListeners = created.monthlyListeners,
          .demoRating = static_cast<double>(created.demoRating),
          .createdPosition = static_cast<int64_t>(position)};
}

}  // namespace

ScoutingBounds scoutingBounds(const GameState& state) {
  const DepartmentStanding standing = departmentRatings(state).departments[department::artistsAndRepertoire];
  ScoutingBounds bounds;
  bounds.scouts = standing.staff;
  const int64_t best = (standing.ratings + 2 * state.businessTrait4) / (standing.staff + 1);
  if (best > lowestMaximum) bounds.maxTraitRatings = best;
  bounds.minTraitRatings = bandFor(minimumTraits, bounds.maxTraitRatings, lowestMaximum);
  return bounds;
}

Outcome openScouting(Game& game) {
  if (scoutingBounds(game.state).scouts > 0) return {};
  return refuse<"🗂 Artists & Repertoire 🗂">(
      "\nYou need to build out your A&R department and hire some staff to search out new talent!");
}

std::vector<ScoutedArtist> generateScoutingList(Game& game) {
  const GameState& state = game.state;
  const ScoutingBounds bounds = scoutingBounds(state);
  int64_t count = 0;
  if (bounds.scouts > 0) {
    const Range range = bandFor(found, bounds.maxTraitRatings, Range{0, 1});
    count = game.random.integer(range.lo, range.hi);
  }
  std::vector<ScoutedArtist> artists;
  const RecordList<CreatedArtist>& created = state.saveAllCreatedArtists;
  for (size_t i = 0; i < created.size(); ++i) artists.push_back(asScouted(created[i], i));
  const int64_t studio = studioRating(state);
  for (; count > 0; --count) artists.push_back(drawArtist(game.random, bounds, studio));
  return artists;
}

bool isStillFree(const GameState& state, const ScoutedArtist& artist) {
  if (artist.createdPosition < 0) return !artist.name.empty();
  const auto position = static_cast<size_t>(artist.createdPosition);
  return position < state.saveAllCreatedArtists.size() && state.saveAllCreatedArtists[position].name == artist.name;
}

double demoRating(Random& random, int64_t studio, const ScoutedArtist& artist, double viralityRoll) {
  const double writing = static_cast<double>(artist.songwriting) * 0.75;
  const double music = static_cast<double>(artist.rhythm + artist.vocals) * 0.5;
  const double charisma = static_cast<double>(artist.charisma) * 0.75;
  return qualityRoll(random, {charisma, writing, music, static_cast<double>(studio)}, viralityRoll);
}

int64_t drawListeners(Random& random, int64_t rating) {
  const Range range = bandFor(listenersOf, rating, Range{0, 0});
  return range.hi > 0 ? random.integer(range.lo, range.hi) : 0;
}

Outcome listenToDemo(Game& game, const ScoutedArtist& artist) {
  if (!hasEnergy(game.state, demoCost)) return noEnergy("\nListening to demos cost 5 energy.");
  pay(game, demoCost);
  stateChanged(game);
  return goTo("goToDemoAndOffer", inOneText(artist));
}

}  // namespace backbeat
