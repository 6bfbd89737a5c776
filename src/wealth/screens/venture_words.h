// What the portfolio and the sale of a stake say alike of a startup.
#pragma once

#include <string>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// "Tones (IPO)"
std::string titleOf(const Venture& venture);

/// "Feel the Music and most recently was valued at $2.5M"
std::string valuationText(const Venture& venture);

/// A line of its news: who it is about, and a glyph for which way it went.
Row newsRow(const Venture& venture, const std::string& text);

/// "+67%", "-12%"; between -1 and 1 without a sign.
std::string gainText(double percent);

/// The rules, told in short.
Help startupsHelp();

}  // namespace backbeat
