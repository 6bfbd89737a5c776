// Who wants to work for the label, and how they come to do so.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "label/departments.h"

namespace backbeat {

inline constexpr int64_t staffPortraits = 41;

/// Somebody who would take a job; known only to the screen that shows them.
struct Candidate {
  int64_t energy = 0;    ///< 50 to 100
  int64_t morale = 0;    ///< 50 to 100
  int64_t portrait = 0;  ///< 1 to `staffPortraits`
  int64_t rating = 0;
  int64_t salary = 0;  ///< dollars a year
  int64_t department = 0;
  int64_t burnRate = 0;  ///< energy lost a week, 4 to 8

  int64_t weeklySalary() const;
};

/// What a year's salary comes to a week, in whole dollars.
int64_t weeklyPay(int64_t salary);

/// The best that the label attracts, at least 1: by the player's business traits and the studio. Nothing bounds it, so
/// that a candidate may rate above 100: intended.
int64_t recordLabelRating(const GameState& state);

/// Draws who applies: the more the player knows of recruiting the more, but a single one past 55: intended.
std::vector<Candidate> generateCandidates(Game& game);

/// Asks before an offer is made; the answer sends `confirmed`.
Outcome askToHire(const GameState& state, const Candidate& candidate, Action confirmed);

/// Whether the office takes one more.
bool hasFreeDesk(const GameState& state);

/// The candidate joins for a weekly salary in the ledger, and the screen that answers closes. Refused when the office
/// is full. The department's bonus follows at the next refresh alone: intended.
Outcome hireEmployee(Game& game, const Candidate& candidate);

}  // namespace backbeat
