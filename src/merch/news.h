// What waits at the shop, and what a week meant for it.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addMerchNeeds(const Game& game, std::vector<Need>& needs);
void addMerchNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
