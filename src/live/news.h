// What waits on stage, and what a week there meant.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

/// A festival this week; a tour that would pay, now that nothing is in its way.
void addLiveNeeds(const Game& game, std::vector<Need>& needs);

/// The week's show and festival, and the end of a tour.
void addLiveNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
