#include "career/skill.h"

#include <algorithm>
#include <numeric>

#include "core/numbers.h"

namespace backbeat {

namespace {

constexpr int64_t greatestWeakestTrait = 110;
constexpr int64_t greatestWeakestOfFive = 100;

int64_t sumOfTraits(const GameState& state) {
  return state.songWriting + state.vocalRange + state.rhythm + state.charisma + state.virality;
}

}  // namespace

int64_t overallSkillRating(const GameState& state) {
  const int64_t best =
      std::max({state.songWriting, state.vocalRange, state.rhythm, state.charisma, state.virality, int64_t{1}});
  return (sumOfTraits(state) + best) / 6;
}

int64_t talent(const GameState& state) {
  const int64_t weakest = std::min({state.songWriting, state.vocalRange, state.rhythm, state.charisma, state.virality});
  return (sumOfTraits(state) + std::min(weakest, greatestWeakestTrait)) / 6;
}

int64_t weakestCountedTwice(const std::array<int64_t, 5>& levels) {
  const int64_t weakest = *std::min_element(levels.begin(), levels.end());
  const int64_t sum = std::accumulate(levels.begin(), levels.end(), int64_t{0});
  return (sum + std::min(weakest, greatestWeakestOfFive)) / 6;
}

int64_t artistRating(const SignedArtist& artist) {
  return weakestCountedTwice({artist.songwriting, artist.vocals, artist.rhythm, artist.charisma, artist.virality});
}

int64_t royaltyOf(const SignedArtist& artist) { return 100 - roundHalfAway(artist.labelRevenuePercentage * 100); }

double drawViralityRoll(Random& random, int64_t virality) {
  return roundTo(random.uniformDouble(0, static_cast<double>(virality)) * 0.75, 2);
}

double qualityRoll(Random& random, std::initializer_list<double> inputs, double viralityRoll) {
  const double worst = std::min(std::min(inputs), 100.0);
  const double sum = std::accumulate(inputs.begin(), inputs.end(), 0.0) + viralityRoll;
  const double count = static_cast<double>(inputs.size() + 1);
  const double mean = sum / count;
  const double low = mean < worst ? mean * 0.5 : worst;
  return roundTo((sum + random.uniformDouble(low, mean)) / (count + 1), 2);
}

}  // namespace backbeat
