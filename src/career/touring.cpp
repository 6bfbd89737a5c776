#include "career/touring.h"

namespace backbeat {

namespace {

constexpr int64_t shortestRestAfterTour = 52;
constexpr int64_t longestRestAfterTour = 70;

}  // namespace

bool mayTour(const GameState& state) { return state.isLabelLaunched >= 1 || state.underContract >= 1; }

size_t firstVenueToCome(const GameState& state) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  size_t first = venues.size();
  while (first > 0 && !venues[first - 1].hasPerformed) --first;
  return first;
}

bool tourEndsThisWeek(const GameState& state) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  if (!mayTour(state) || state.onTour < 1 || venues.empty()) return false;
  const size_t first = firstVenueToCome(state);
  if (first == venues.size()) return true;
  return first + 1 == venues.size() && venues[first].numberOfShows == 1;
}

int64_t drawRestAfterTour(Random& random) { return random.integer(shortestRestAfterTour, longestRestAfterTour); }

}  // namespace backbeat
