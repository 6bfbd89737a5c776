// Figures of money, as the report and the finance screens tell them.
#pragma once

#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// A figure that counts up to an amount of dollars.
Figure dollars(std::string label, double amount, Tone tone, std::string note = {});

/// The sum of the lines as they are shown, to the dollar.
Figure totalOf(std::string label, const std::vector<Figure>& lines);

/// What everything is worth together, and the share of cash, homes, startups and vehicles.
void describeNetWorth(View& view, const GameState& state);

}  // namespace backbeat
