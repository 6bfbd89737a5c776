// What love, home and family mean for the week, and what of them waits.
#pragma once

#include <vector>

#include "core/needs.h"
#include "core/news.h"

namespace backbeat {

void addLifeNeeds(const Game& game, std::vector<Need>& needs);
void addLifeNews(const Game& game, std::vector<News>& news);

/// `News::key` of the news that the partner has left.
inline constexpr const char* breakUpKey = "break-up";
/// Puts the artist on its poster, which parts in two between them.
void tearApart(const GameState& state, Poster& poster);

}  // namespace backbeat
