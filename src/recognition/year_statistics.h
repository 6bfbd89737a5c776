// What one year brought, by its weekly records.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

enum class YearKind { songs, albums, tours, merch, videos };

inline constexpr size_t weeksOfYear = 52;

/// One song, album, tour, product or video.
struct YearWork {
  int64_t id = 0;
  std::string title = {};
  int64_t amount = 0;  ///< streams, units, seats or views
  double dollars = 0;
  int64_t songId = 0;  ///< of a song or a video
};

struct YearOfKind {
  std::vector<YearWork> works;  ///< the greatest amount first; of equals what was heard of first
  int64_t amount = 0;
  double dollars = 0;
  std::array<int64_t, weeksOfYear> weeks{};  ///< the amount of each
  int64_t shows = 0;                         ///< of tours
  int64_t soldOut = 0;                       ///< of those
};

/// Looks at the records of that year alone.
YearOfKind yearOfKind(const GameState& state, YearKind kind, int64_t year);

/// Whether the year is so long ago that its records were cleared away: its songs and albums have none.
bool recordsAreGone(const GameState& state, int64_t year);

}  // namespace backbeat
