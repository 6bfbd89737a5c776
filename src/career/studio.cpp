#include "career/studio.h"

#include <algorithm>

#include "core/bands.h"
#include "core/calendar.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, int64_t> rentalCeilings[] = {{9, 50},   {19, 100},   {29, 150},   {39, 300},   {49, 500},
                                                     {59, 800}, {69, 1'000}, {79, 2'000}, {89, 5'000}, {100, 10'000}};

}  // namespace

const StudioPart* studioPartNamed(std::string_view key) {
  const auto found =
      std::find_if(studioParts.begin(), studioParts.end(), [&](const StudioPart& part) { return part.key == key; });
  return found == studioParts.end() ? nullptr : &*found;
}

Price upgradeCost(const GameState& state, const StudioPart& part) {
  return {.dollars = static_cast<double>(state.*part.level) * part.basePrice};
}

int64_t studioRating(const GameState& state) {
  int64_t rating = 0;
  for (const StudioPart& part : studioParts) rating += state.*part.level;
  return rating;
}

int64_t studioRentalCeiling(int64_t rating) { return bandFor(rentalCeilings, rating, int64_t{0}); }

Outcome upgradeStudio(Game& game, const StudioPart& part) {
  GameState& state = game.state;
  const Price cost = upgradeCost(state, part);
  if (!hasCash(state, cost) || state.*part.level >= highestStudioLevel) {
    return noCash<"💵 Not Enough 💵">("\nYou don't have the funds required to purchase this upgrade.");
  }
  pay(game, cost);
  state.*part.level += 1;
  game.save(part.level);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
