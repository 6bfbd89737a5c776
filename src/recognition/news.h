// What the awards mean for the week, and what of them waits for the player.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addAwardNeeds(const Game& game, std::vector<Need>& needs);
void addAwardNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
