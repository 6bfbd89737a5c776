// A side gig: what its button says, what it takes, and what comes of it.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct WeeklyEvents;

struct Gig {
  const char* name = "";  ///< the caption without its price: "Karaoke Night"
  const char* icon = "";
  const char* headline = "";
  const char* promise = "";
  Price price = {};                                                    ///< of what asks for energy
  double (*dollars)(const GameState&, const WeeklyEvents&) = nullptr;  ///< of what asks for cash, as things stand
  const char* refusal = "";                                            ///< said when energy or cash does not reach
  void (*draw)(Game&, WeeklyEvents&) = nullptr;                        ///< what its button draws when it is offered
  Outcome (*guard)(Game&, WeeklyEvents&) = nullptr;                    ///< what is looked at before the price
  Outcome (*effect)(Game&, const WeeklyEvents&) = nullptr;             ///< what comes of it, once it is paid
};

/// What the gig costs as things stand.
Price gigCost(const Gig& gig, const GameState& state, const WeeklyEvents& events);

/// Guard, price, effect. Refused at the first or the second, nothing is paid.
Outcome takeGig(Game& game, WeeklyEvents& events, const Gig& gig);

}  // namespace backbeat
