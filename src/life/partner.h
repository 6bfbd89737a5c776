// Who the artist is with, and what follows from the record of a match.
#pragma once

#include <optional>
#include <string>

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// `Matches::relationshipState`.
namespace love {
inline constexpr int64_t ended = -1;
inline constexpr int64_t matched = 0;
inline constexpr int64_t dating = 1;
inline constexpr int64_t engaged = 2;
inline constexpr int64_t married = 3;
}  // namespace love

/// Place of the partner in the list: the first with whom something runs. There can be two; every rule acts on the
/// first, on purpose.
std::optional<size_t> partnerPosition(const GameState& state);

/// Place of the match with that id.
std::optional<size_t> matchPosition(const GameState& state, int64_t matchId);

bool isMarried(const Matches& match);

/// "Dating", "Engaged", "Married".
std::string statusText(const Matches& partner);

/// How many matched and were never asked out.
size_t matchesWaiting(const GameState& state);

/// Years, counted from how old the match was when met.
int64_t ageNow(const GameState& state, const Matches& match);

/// Weeks from the first yes to the end, or until now.
int64_t weeksTogether(const GameState& state, const Matches& match);

/// 1 to 10: looks, mind and manners in one.
double exactRating(const Matches& match);
int64_t ratingOf(const Matches& match);

/// What it takes to keep somebody happy, 5 to 100, in one word, and what it does to the energy that they give. The
/// zigzag is meant: who is in the middle gives the most.
struct Temper {
  std::string_view label;
  int64_t energy;
};
Temper temperOf(int64_t maintenance);
/// "Sweetheart (+4⚡️)"
std::string temperText(int64_t maintenance);

/// "3 weeks", "5 months", "2 years".
std::string lengthText(int64_t weeks);

/// The face that a picture file stands for: it follows from the file alone, so that a new name changes nothing.
Picture faceOf(const Matches& match);
/// As old as the match is by now.
Picture faceNow(const GameState& state, const Matches& match);

/// A post in the match's name.
void postChirpForMatch(Game& game, const Matches& match, const std::string& message);

}  // namespace backbeat
