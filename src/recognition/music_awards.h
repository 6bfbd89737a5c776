// The annual music awards: nominations in one week of the year, winners seven weeks later. Nothing is paid for winning.
#pragma once

#include "core/game.h"

namespace backbeat {

inline constexpr int64_t nominationsWeek = 42;
inline constexpr int64_t winnersWeek = 49;

enum class AwardShow { none, nominations, winners };

/// Last step of the report's opening: which show it leads to this week. In the week of the nominations none once they
/// were opened, in that of the winners none once they were decided; a year that was never nominated is shown its
/// winners' night all the same, and is told there that there are none.
AwardShow showAwardButton(const GameState& state);

/// Fills this year's fields and writes an `Award` for each nominee of the artist and the label; what the last year's
/// fields held is forgotten. False, and nothing is drawn, outside its week and once the year was nominated.
bool runNominations(Game& game);

/// Draws this year's winners, once. False, and nothing is drawn, outside its week and unless the year was nominated.
bool decideWinners(Game& game);

}  // namespace backbeat
