#include "music/production_options.h"

#include <array>

#include "career/label_contract.h"
#include "career/studio.h"

namespace backbeat {

namespace {

struct HiredOption {
  const char* name;
  int64_t rating;
  int64_t cost;
};

constexpr std::array<HiredOption, 5> writers = {{
    {"Ghost Writer", 15, 1'125},
    {"Ghost Writer", 25, 3'750},
    {"Ghost Writer", 35, 9'000},
    {"Ghost Writer", 45, 18'000},
    {"Ghost Writer", 55, 28'125},
}};

constexpr std::array<HiredOption, 5> bands = {{
    {"The Meteor Blue", 15, 560},
    {"The Airships", 25, 1'875},
    {"Woodland Drinkers", 35, 4'500},
    {"Arrival's Crane", 45, 9'000},
    {"Pitch Prudential", 55, 14'075},
}};

constexpr std::array<HiredOption, 5> studios = {{
    {"The Music Group", 15, 450},
    {"Music Box", 25, 1'000},
    {"Wiley Productions", 35, 2'000},
    {"House Melodies", 45, 3'250},
    {"Better Sounds", 55, 5'000},
}};

constexpr size_t mostStudiosBeforeTheLabels = 8;

std::vector<ProductionOption> withHired(ProductionOption own, const std::array<HiredOption, 5>& hired,
                                        int64_t adjustment) {
  std::vector<ProductionOption> options = {std::move(own)};
  for (const HiredOption& option : hired) options.push_back({option.name, option.rating + adjustment, option.cost});
  return options;
}

}  // namespace

ProductionOptions drawProductionOptions(Game& game) {
  const GameState& state = game.state;
  const int64_t songWritingRatingAdjustment = game.random.integer(0, 10) - 5;
  const int64_t musicalityRatingAdjustment = game.random.integer(0, 10) - 5;
  const int64_t studioRatingAdjustment = game.random.integer(0, 10) - 5;
  ProductionOptions options;
  options.writing =
      withHired({"Written by " + state.myArtistsName, state.songWriting, 0}, writers, songWritingRatingAdjustment);
  options.musicality =
      withHired({state.myArtistsName, (state.vocalRange + state.rhythm) / 2, 0}, bands, musicalityRatingAdjustment);
  options.studio =
      withHired({state.myArtistsName + "'s Studio", studioRating(state), 0}, studios, studioRatingAdjustment);
  const size_t running = runningContract(state);
  if (state.underContract >= 1 && options.studio.size() <= mostStudiosBeforeTheLabels &&
      running != state.saveAllContractLabelList.size()) {
    const ContractLabel& contract = state.saveAllContractLabelList[running];
    options.studio.push_back({contract.recordLabel, contract.studioScore + studioRatingAdjustment, 0});
  }
  return options;
}

}  // namespace backbeat
