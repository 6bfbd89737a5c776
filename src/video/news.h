// What a week meant for the videos.
#pragma once

#include <vector>

#include "core/news.h"

namespace backbeat {

/// Videos put out in the week, and those that passed a million views or ten times as many.
void addVideoNews(const Game& game, std::vector<News>& news);

}  // namespace backbeat
