#include "label/departments.h"

#include <algorithm>

#include "career/skill.h"
#include "career/studio.h"
#include "core/calendar.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

/// What the player brings into the department.
int64_t ownShare(const GameState& state, const Department& department) {
  return department.trait ? 2 * state.*department.trait : studioRating(state);
}

void writeBonus(GameState& state, int64_t code, int64_t studioRating) {
  const double rating = static_cast<double>(studioRating);
  const int64_t tens = truncate(rating / 10.0);
  switch (code) {
    case department::artistsAndRepertoire:
      state.labelArtistHappinessBonus = rating / 100.0 * 0.5 * 100.0 / 100.0;
      break;
    case department::legal: state.labelNegotiationBonus = tens; break;
    case department::production: state.labelViralityBoost = tens * 2; break;
    case department::publicity: state.labelMarketingBoost = tens * 3; break;
    case department::sales: state.labelRevenueBonus = static_cast<double>(tens) * 1.5; break;
    default: break;
  }
}

}  // namespace

LabelRatings departmentRatings(const GameState& state) {
  LabelRatings label;
  for (const Employee& employee : state.saveAllEmployeeList) {
    if (employee.employeeDepartmentCode < 0 || employee.employeeDepartmentCode >= int64_t{departmentCount}) continue;
    DepartmentStanding& standing = label.departments[static_cast<size_t>(employee.employeeDepartmentCode)];
    standing.staff += 1;
    standing.ratings += employee.employeeRating;
  }
  std::array<int64_t, departmentCount> studioRatings = {};
  for (size_t code = 0; code < departmentCount; ++code) {
    DepartmentStanding& standing = label.departments[code];
    if (standing.staff == 0) continue;
    standing.rating = standing.ratings / standing.staff;
    standing.studioRating = (standing.ratings + ownShare(state, departments[code])) / (standing.staff + 1);
    studioRatings[code] = standing.studioRating;
  }
  label.overall = weakestCountedTwice(studioRatings);
  return label;
}

int64_t activeArtists(const GameState& state) {
  const RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  return std::count_if(artists.begin(), artists.end(), [](const SignedArtist& artist) { return artist.underContract; });
}

bool isUnderstaffed(const GameState& state, const DepartmentStanding& standing) {
  return activeArtists(state) > standing.staff * artistsForEach;
}

void refreshLabelRatings(Game& game) {
  const LabelRatings label = departmentRatings(game.state);
  for (size_t code = 0; code < departmentCount; ++code) {
    const DepartmentStanding& standing = label.departments[code];
    if (standing.staff > 0) writeBonus(game.state, static_cast<int64_t>(code), standing.studioRating);
  }
  game.save(&GameState::labelRevenueBonus, &GameState::labelMarketingBoost, &GameState::labelViralityBoost,
            &GameState::labelNegotiationBonus, &GameState::labelArtistHappinessBonus);
}

void clearBonus(GameState& state, int64_t code) { writeBonus(state, code, 0); }

void labelChanged(Game& game) {
  refreshLabelRatings(game);
  stateChanged(game);
}

}  // namespace backbeat
