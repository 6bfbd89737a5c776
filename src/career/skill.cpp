#include "career/skill.h"

#include <algorithm>

namespace backbeat {

namespace {

constexpr int64_t greatestWeakestTrait = 110;
constexpr int64_t greatestWeakestTraitOfSigned = 100;

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

int64_t artistRating(const SignedArtist& artist) {
  const int64_t weakest =
      std::min({artist.songwriting, artist.vocals, artist.rhythm, artist.charisma, artist.virality});
  return (artist.songwriting + artist.vocals + artist.rhythm + artist.charisma + artist.virality +
          std::min(weakest, greatestWeakestTraitOfSigned)) /
         6;
}

}  // namespace backbeat
