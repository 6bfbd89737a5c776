// What love, home and family mean for the week, and what of them waits.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addLifeNeeds(const Game& game, std::vector<Need>& needs);
void addLifeNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
