// How a label begins and ends.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr int64_t studioForLabel = 70;
inline constexpr int64_t weeklyLabelEnergy = 30;

/// The button says ten energy and takes none: intended.
inline constexpr Price launchCost = {
    .energy = 10, .dollars = 2'000'000, .charge = Charge{.energy = 0, .dollars = 2'000'000}};

struct LabelLogo {
  std::string_view file;  ///< as it is kept
  std::string_view mark;
  std::string_view title;
};
inline constexpr std::array<LabelLogo, 4> labelLogos = {{
    {"labelOption1.png", "kite", "Kite"},
    {"labelOption2.png", "sunrise", "Sunrise"},
    {"labelOption3.png", "crown", "Crown"},
    {"labelOption4.png", "needle", "Needle"},
}};
inline constexpr size_t firstLogo = 2;  ///< chosen until the player takes another

/// At the door of the label home. Refused under another label's contract.
Outcome openLabelHome(Game& game);

/// At the door of the screen where a label is founded. Refused as above, and without a studio of 70.
Outcome beginLaunch(Game& game);

/// Founds the label. Refused without a name, a slogan, then the cash; texts are taken as typed, and the studio is not
/// asked again. What it costs stays out of the label's lifetime cost: intended. A waiting offer of another label
/// lapses.
Outcome launchLabel(Game& game, const std::string& name, const std::string& slogan, const LabelLogo& logo);

/// Asks before the label is closed; the answer sends `confirmed`.
Outcome askToCloseLabel(const GameState& state, Action confirmed);

/// Everything that belongs to the label is gone and its values are what they were before the first one, so that another
/// can be founded at the full price. Nothing is paid back. Of the ledger goes every line from the staff's codes on, the
/// shop's plans too, whose values stay: intended.
void closeLabel(Game& game);

}  // namespace backbeat
