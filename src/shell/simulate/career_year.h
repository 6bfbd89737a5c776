// One year of one simulated career, as numbers: a row of the table that a simulation writes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "core/game_state.h"

namespace backbeat {

/// Where a career stands at the end of a year. Counts are of the whole career so far.
struct CareerYear {
  int64_t year = 0;  ///< of the career, from 1
  double cash = 0;
  double netAssets = 0;
  int64_t listeners = 0;
  int64_t followers = 0;
  int64_t songs = 0;   ///< released
  int64_t albums = 0;  ///< released
  int64_t streams = 0;
  int64_t albumsSold = 0;
  int64_t chartHits = 0;   ///< own songs that ever charted
  int64_t bestRank = 0;    ///< 0 when none did
  int64_t weeksAtOne = 0;  ///< of all own songs together
  int64_t videos = 0;
  int64_t shows = 0;     ///< played on tours
  int64_t products = 0;  ///< ever on the shelf
  double touring = 0;    ///< dollars, after what labels took
  double merch = 0;      ///< dollars of sales less orders and fees
  double homes = 0;      ///< dollars that those owned would bring, and what was paid for them
  double homesPaid = 0;
  double garage = 0;  ///< the same of vehicles
  double garagePaid = 0;
  double ventures = 0;  ///< the same of stakes in startups; what ended counts with what it brought
  double venturesPaid = 0;
  int64_t underContract = 0;  ///< 1 while a label's contract runs
  int64_t ownLabel = 0;       ///< 1 while the own one stands
  int64_t artists = 0;        ///< under contract with it
  double labelNet = 0;        ///< dollars that it brought less all that it cost but its launch; 0 once it is closed
  int64_t generation = 0;     ///< of the family, from 1; all else is of the one that plays
  int64_t love = 0;           ///< with the partner: 0 for none, 1 dating, 2 engaged, 3 married
  int64_t exes = 0;
  int64_t children = 0;     ///< in the family
  int64_t nominations = 0;  ///< for awards, the label's too
  int64_t awards = 0;       ///< won, the label's too
  int64_t energyCeiling = 0;
  int64_t songWriting = 0;
  int64_t vocalRange = 0;
  int64_t rhythm = 0;
  int64_t charisma = 0;
  int64_t virality = 0;
  int64_t studio = 0;  ///< rating of the own one
};

/// One number of the row.
struct Column {
  std::string_view name;
  std::variant<int64_t CareerYear::*, double CareerYear::*> member;

  double of(const CareerYear& row) const;
  std::string text(const CareerYear& row) const;  ///< dollars with cents
};

inline constexpr std::array<Column, 40> columns = {{
    {"year", &CareerYear::year},
    {"cash", &CareerYear::cash},
    {"net_assets", &CareerYear::netAssets},
    {"listeners", &CareerYear::listeners},
    {"followers", &CareerYear::followers},
    {"songs", &CareerYear::songs},
    {"albums", &CareerYear::albums},
    {"streams", &CareerYear::streams},
    {"albums_sold", &CareerYear::albumsSold},
    {"chart_hits", &CareerYear::chartHits},
    {"best_rank", &CareerYear::bestRank},
    {"weeks_at_one", &CareerYear::weeksAtOne},
    {"videos", &CareerYear::videos},
    {"shows", &CareerYear::shows},
    {"products", &CareerYear::products},
    {"touring", &CareerYear::touring},
    {"merch", &CareerYear::merch},
    {"homes", &CareerYear::homes},
    {"homes_paid", &CareerYear::homesPaid},
    {"garage", &CareerYear::garage},
    {"garage_paid", &CareerYear::garagePaid},
    {"ventures", &CareerYear::ventures},
    {"ventures_paid", &CareerYear::venturesPaid},
    {"under_contract", &CareerYear::underContract},
    {"own_label", &CareerYear::ownLabel},
    {"artists", &CareerYear::artists},
    {"label_net", &CareerYear::labelNet},
    {"generation", &CareerYear::generation},
    {"love", &CareerYear::love},
    {"exes", &CareerYear::exes},
    {"children", &CareerYear::children},
    {"nominations", &CareerYear::nominations},
    {"awards", &CareerYear::awards},
    {"energy_ceiling", &CareerYear::energyCeiling},
    {"songwriting", &CareerYear::songWriting},
    {"vocals", &CareerYear::vocalRange},
    {"rhythm", &CareerYear::rhythm},
    {"charisma", &CareerYear::charisma},
    {"virality", &CareerYear::virality},
    {"studio", &CareerYear::studio},
}};

/// The row of a career that has just ended its `year`th year.
CareerYear careerYear(const GameState& state, int64_t year);

}  // namespace backbeat
