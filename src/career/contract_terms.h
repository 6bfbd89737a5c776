// How the terms of a deal are told, on the offer as on the signed contract.
#pragma once

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// Every rate of the deal beside what an artist has without one. `viewingRate` is dollars a view under the deal.
Table contractTerms(const ContractLabel& contract, double viewingRate);

/// What the deadline means today: "1 LP and 2 songs in 5 weeks".
std::string contractOutlook(const GameState& state, const ContractLabel& contract);

/// Weeks to the deadline; 0 in the last one, negative past it.
int64_t contractWeeksLeft(const GameState& state, const ContractLabel& contract);

}  // namespace backbeat
