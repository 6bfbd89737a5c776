// What several screens of the label say alike.
#pragma once

#include <string>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// A number without decimals that say nothing: "0.25", "7.5", "30".
std::string shortNumber(double number);

/// The label's logo.
Picture logoOf(const GameState& state);

/// The face of somebody on the staff, by its number or as the record keeps it.
Picture staffPortrait(int64_t number);
Picture staffPortrait(const Employee& employee);

/// A level out of a hundred as a bar with its band's tone.
Meter levelMeter(std::string label, double level);

/// A rating out of a hundred, to a tenth, as a bar with its band's tone.
Meter ratingMeter(std::string label, double rating);

/// A level as one of several columns.
Gauge levelGauge(std::string label, double level);

}  // namespace backbeat
