#include <algorithm>
#include <vector>

#include "career/skill.h"
#include "music/guests.h"
#include "turn/gigs/gigs.h"

namespace backbeat {

namespace {

constexpr int64_t skillForFeatures = 30;

/// Who asks, and for what, is drawn there.
Outcome hearTheOffer(Game&, const WeeklyEvents&) { return goTo("goToFeatureForAnArtist"); }

}  // namespace

bool skilledEnoughToFeature(const GameState& state) {
  const int64_t skill = overallSkillRating(state);
  const std::vector<FeaturedArtist> stars = guestTable(state);
  return skill >= skillForFeatures && std::any_of(stars.begin(), stars.end(), [&](const FeaturedArtist& star) {
           return star.rating <= static_cast<double>(skill);
         });
}

const Gig featureRequest = {
    .name = "Feature Request",
    .icon = "guest",
    .headline = "Somebody wants a verse",
    .promise = "Your name on theirs.",
    .price = {.energy = 25},
    .refusal = "\nYou do not have enough energy to feature on a track.",
    .effect = hearTheOffer,
};

}  // namespace backbeat
