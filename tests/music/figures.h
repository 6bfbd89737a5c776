// The songs and albums of the world in which no two figures are equal, and what is told of them on more than one
// screen.
#pragma once

#include "play/figures.h"

namespace backbeat {

const Song& songTitled(const GameState& state, std::string_view title);
const Album& albumTitled(const GameState& state, std::string_view title);
const BillboardSong& chartRowTitled(const GameState& state, std::string_view title);

/// The recorded weeks of a song or an album, oldest first.
struct Weeks {
  std::vector<int64_t> counts;  ///< streams or units
  std::vector<double> dollars;
  std::vector<int64_t> weeks;

  int64_t best() const;
  double earned() const;
};
Weeks weeksOf(const GameState& state, const Song& song);
Weeks weeksOf(const GameState& state, const Album& album);

/// "13 weeks left".
std::string weeksLeft(double life);

/// What a row of a song or an album tells wherever they are listed.
Standings songFigures(const GameState& state, std::string_view title);
Standings albumFigures(const GameState& state, std::string_view title);

/// The graph of the recorded weeks, and the table of them.
Standings weekFigures(const std::string& title, int64_t total, const std::string& life, const Weeks& weeks);
Standings weekTable(const std::string& column, const Weeks& weeks, int64_t year);

/// The bar to the next certification.
Standings certificationFigures(const std::string& label, int64_t total, const std::string& next, int64_t asks);

/// Ends a week in which the label's artists, whose figures are out of this world, keep silent.
void endWeekWithoutLabel(Game& game);

/// The marketing plans, the third one picked.
Standings marketingFigures(Game& twin);

}  // namespace backbeat
