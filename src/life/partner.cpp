#include "life/partner.h"

#include <algorithm>

#include "core/bands.h"
#include "core/money.h"
#include "core/numbers.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfYear = 52;
constexpr int64_t elderlyFrom = 60;
constexpr int64_t weeksOfMonth = 4;
constexpr int64_t weeksInWords = 5;  ///< from here on a length is told in months

std::optional<size_t> placed(const GameState& state, size_t position) {
  if (position == state.saveAllMatchesList.size()) return std::nullopt;
  return position;
}

bool looksFemale(const Matches& match) { return match.matchImage.find("woman") != std::string::npos; }

}  // namespace

std::optional<size_t> partnerPosition(const GameState& state) {
  return placed(state, state.saveAllMatchesList.find(
                           [](const Matches& match) { return match.relationshipState > love::matched; }));
}

std::optional<size_t> matchPosition(const GameState& state, int64_t matchId) {
  return placed(state, state.saveAllMatchesList.find([&](const Matches& match) { return match.matchId == matchId; }));
}

bool isMarried(const Matches& match) { return match.relationshipState >= love::married; }

std::string statusText(const Matches& partner) {
  if (isMarried(partner)) return "Married";
  return partner.relationshipState == love::engaged ? "Engaged" : "Dating";
}

size_t matchesWaiting(const GameState& state) {
  return static_cast<size_t>(
      std::count_if(state.saveAllMatchesList.begin(), state.saveAllMatchesList.end(),
                    [](const Matches& match) { return match.relationshipState == love::matched; }));
}

int64_t ageNow(const GameState& state, const Matches& match) {
  return match.age + (state.weekNumberForTracking - match.weekMatched) / weeksOfYear;
}

int64_t weeksTogether(const GameState& state, const Matches& match) {
  const bool isOver = match.relationshipState < love::matched;
  return (isOver ? match.weekEndedDating : state.weekNumberForTracking) - match.weekStartedDating;
}

double exactRating(const Matches& match) {
  constexpr double perfect = 9.5;
  const double rating = static_cast<double>(match.beauty + match.personality + match.intelligence) / 30.0;
  return rating >= perfect ? 10.0 : rating;
}

int64_t ratingOf(const Matches& match) { return truncate(exactRating(match)); }

Temper temperOf(int64_t maintenance) {
  static constexpr Band<int64_t, Temper> tempers[] = {
      {9, {"Chill", 2}},         {19, {"Classy", 1}},     {29, {"Lovey-dovey", 3}},
      {39, {"Bestie", 2}},       {49, {"Sweetheart", 4}}, {59, {"Freaky", 3}},
      {69, {"Gold Digger", -1}}, {79, {"Needy", -2}},     {89, {"Smothering", -3}},
  };
  return bandFor(tempers, maintenance, Temper{"Possessive", -4});
}

std::string temperText(int64_t maintenance) {
  const Temper temper = temperOf(maintenance);
  return std::string(temper.label) + " (" + (temper.energy > 0 ? "+" : "") + std::to_string(temper.energy) + "⚡️)";
}

std::string lengthText(int64_t weeks) {
  if (weeks < 1) return "less than a week";
  if (weeks < weeksInWords) return counted(weeks, "week");
  if (weeks < weeksOfYear) return counted(weeks / weeksOfMonth, "month");
  return counted(weeks / weeksOfYear, "year");
}

Picture faceOf(const Matches& match) { return person(match.matchImage); }

Picture faceNow(const GameState& state, const Matches& match) {
  if (ageNow(state, match) < elderlyFrom) return faceOf(match);
  return drawn(Picture::Kind::person, looksFemale(match) ? "oldWoman" : "oldMan", match.matchImage);
}

void postChirpForMatch(Game& game, const Matches& match, const std::string& message) {
  postChirpForPerson(game, account::firstPartner + match.matchId, match.name, match.matchImage, message);
}

}  // namespace backbeat
