// Songs and albums for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

Song songInProduction(int64_t songId, const std::string& title);
Song releasedSong(int64_t songId, const std::string& title);
Album releasedAlbum(int64_t albumId, const std::string& title);

/// An album in production with so many songs in production on it, all under the next ids of the career. Its id.
int64_t addAlbumInProduction(GameState& state, const std::string& title, int64_t songs);

/// A song on the chart with its row: at `rank` this week, one place lower the week before.
void putOnChart(GameState& state, int64_t songId, int64_t rank, int64_t streams);
/// The row of a song that was on the chart and left it.
void takeOffChart(GameState& state, int64_t songId);

/// Somebody at work, in the week that the state stands at: a name, some fame, so many songs that are out and were
/// streamed for so many weeks, an album that is out and one in production.
void furnishCareer(GameState& state, int64_t songs, int64_t weeksEach);

/// The songs of `furnishCareer`: released ones from this id on, three apart, as the game numbers them.
inline constexpr int64_t firstWorldSong = 12;

}  // namespace backbeat
