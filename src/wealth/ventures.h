// The startups of the portfolio, and what they tell the world.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/random.h"
#include "core/view.h"

namespace backbeat {

/// Values of `Venture::hasExited`.
namespace venture_exit {
inline constexpr int64_t running = 0;
inline constexpr int64_t acquired = 1;
inline constexpr int64_t listed = 2;
inline constexpr int64_t bankrupt = 3;
inline constexpr int64_t soldPrivately = 4;
}  // namespace venture_exit

inline bool isRunning(const Venture& venture) { return venture.hasExited == venture_exit::running; }

/// Position in `saveAllVentureInvestments`; nothing when no such stake was ever held.
std::optional<size_t> venturePosition(const GameState& state, int64_t businessId);

/// " (ACQUIRED)", " (IPO)", " (BANKRUPT)", " (PRIVATE EXIT)"; "" while it runs.
std::string_view exitStatus(int64_t hasExited);

/// Percent that today's value, or an offer, is above what was put in; 0 when nothing was.
double gainOn(const Venture& venture, double dollars);

/// The company's logo.
Picture markOf(const Venture& venture);
Picture markOf(std::string_view businessImage, std::string_view businessName);

/// A post by the company itself; its counts are drawn.
void chirpAs(Game& game, const Venture& venture, const std::string& message);

/// The entry of this week's report about a company, which is added where it is missing.
VentureWeek& weekOf(Game& game, int64_t businessId);

}  // namespace backbeat
