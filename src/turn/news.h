// What of money waits for the player, and what a week meant for it and on stage.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addTurnNeeds(const Game& game, std::vector<Need>& needs);
void addTurnNews(const Game& game, std::vector<News>& news);

/// Weeks that the cash covers as things stand without any release; nothing while it does not shrink.
std::optional<int64_t> weeksUntilDebt(const GameState& state);

}  // namespace backbeat
