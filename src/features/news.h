// What a week meant for the songs of others that the player is on.
#pragma once

#include <vector>

#include "core/news.h"

namespace backbeat {

void addFeaturesNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
