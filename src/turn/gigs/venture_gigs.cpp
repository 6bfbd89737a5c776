#include <algorithm>

#include "turn/gigs/gigs.h"

namespace backbeat {

namespace {

constexpr int64_t lastRoundWithRaise = 3;

bool raises(const Venture& venture) {
  return venture.hasExited == 0 && venture.currentFundingRound <= lastRoundWithRaise && venture.timeUntilNextRaise == 0;
}

}  // namespace

bool anyRaise(const GameState& state) {
  return std::any_of(state.saveAllVentureInvestments.begin(), state.saveAllVentureInvestments.end(), raises);
}

const Gig pitchDeck = {
    .name = "Pitch Deck",
    .icon = "document",
    .headline = "Founders in your inbox",
    .promise = "Somebody wants to show you their slides.",
    .price = {.energy = 50},
    .refusal = "\nYou do not have enough energy available for that side hustle work.",
    .notOpenYet = "The founders are still drawing their slides.",
};

/// Says 50 and takes no energy: meant.
const Gig ventureRaise = {
    .name = "Venture Raise",
    .icon = "trend",
    .headline = "A startup raises again",
    .promise = "Your stake could grow.",
    .price = {.energy = 50, .charge = Charge{}},
    .notOpenYet = "The founders are not taking calls yet.",
};

}  // namespace backbeat
