// The three choices behind a song: who writes it, who plays it, where it is recorded.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"

namespace backbeat {

struct ProductionOption {
  std::string name;
  int64_t rating = 0;  ///< as shown and used: the table's, with the list's adjustment
  int64_t cost = 0;    ///< dollars
};

/// The three lists as drawn for one visit of the song screen; option 0 of each is the artist's own work.
struct ProductionOptions {
  std::vector<ProductionOption> writing;
  std::vector<ProductionOption> musicality;
  std::vector<ProductionOption> studio;  ///< one more under contract: the label's studio, free
};

/// Builds the lists. One adjustment from -5 to 5 is drawn for each list, in the order writing, musicality, studio; it
/// applies to every option from 1 up, the label's studio included.
ProductionOptions drawProductionOptions(Game& game);

}  // namespace backbeat
