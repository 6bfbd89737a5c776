// What a show leaves to the artist.
#pragma once

#include <cstdint>

#include "core/game_state.h"

namespace backbeat {

/// What the label takes of a show: dollars for each seat first, then its share of what is left.
struct ShowTerms {
  double recordLabelTicketCost = 0;
  double cut = 0;  ///< 0 to 1
};

/// The artist's own label bears a fixed cost and takes no share; a contract names both. Nothing is taken where the
/// contract is lost.
ShowTerms showTerms(const GameState& state);

/// Dollars for `seats` seats at the price; below 0 where a ticket sells for less than it costs.
double netOfShow(const ShowTerms& terms, double ticketPrice, int64_t seats);

}  // namespace backbeat
