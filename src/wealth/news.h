// What waits in the garage, and what a week meant for the fortune.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addWealthNeeds(const Game& game, std::vector<Need>& needs);
void addWealthNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
