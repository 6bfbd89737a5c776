// What of jobs, skills and contracts waits for the player, and what a week meant for them.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addCareerNeeds(const Game& game, std::vector<Need>& needs);
void addCareerNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
