// What of the label waits for the player, and what a week meant for it.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addLabelNeeds(const Game& game, std::vector<Need>& needs);
void addLabelNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
