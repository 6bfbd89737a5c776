// What a week meant for songs, albums, streams, chart and listeners.
#pragma once

#include <vector>

#include "core/news.h"

namespace backbeat {

void addMusicNews(const Game& game, std::vector<News>& news);

/// Whether a week of so many streams beats all before it, once there are a few to beat. Where records are gone nobody
/// knows.
bool isBestWeek(const Game& game, int64_t streams);

/// Whether no other single or album song, and no other album of its format, came out before. An album is told from its
/// songs: six make an LP.
bool isFirstRelease(const GameState& state, const Song& song);
bool isFirstRelease(const GameState& state, const Album& album);

}  // namespace backbeat
