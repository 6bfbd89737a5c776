#include "turn/gigs/gig.h"

#include "core/calendar.h"
#include "core/purse.h"

namespace backbeat {

Price gigCost(const Gig& gig, const GameState& state, const WeeklyEvents& events) {
  return gig.dollars ? Price{.dollars = gig.dollars(state, events)} : gig.price;
}

Outcome takeGig(Game& game, WeeklyEvents& events, const Gig& gig) {
  if (gig.guard) {
    if (Outcome refusal = gig.guard(game, events); !refusal.done()) return refusal;
  }
  const Price cost = gigCost(gig, game.state, events);
  if (!hasEnergy(game.state, cost)) return noEnergy<"Not Enough Energy">(gig.refusal);
  if (gig.dollars && !hasCash(game.state, cost)) return noCash<"Not Enough Cash">(gig.refusal);
  pay(game, cost);
  Outcome outcome = gig.effect(game, events);
  stateChanged(game);
  return outcome;
}

}  // namespace backbeat
