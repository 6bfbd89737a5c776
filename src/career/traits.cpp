#include "career/traits.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/purse.h"

namespace backbeat {

namespace {

/// By how much a trait's cost rises, for a level that costs one.
constexpr std::array<int64_t, 10> energyCostMultiples = {1, 1, 1, 1, 1, 1, 1, 1, 2, 3};

}  // namespace

const Trait* traitNamed(std::string_view key) {
  const auto found = std::find_if(traits.begin(), traits.end(), [&](const Trait& trait) { return trait.key == key; });
  return found == traits.end() ? nullptr : &*found;
}

Price traitCost(const GameState& state, const Trait& trait) { return {.energy = state.*trait.cost}; }

int64_t nextLevel(const GameState& state, const Trait& trait) { return state.*trait.cost / trait.energyPerLevel; }

bool isFinished(const GameState& state, const Trait& trait) { return state.*trait.level >= trait.highestLevel; }

Outcome levelUpTrait(Game& game, const Trait& trait) {
  GameState& state = game.state;
  if (trait.needsLabel && state.isLabelLaunched < 1) {
    return refuse<"🎧 Record Label 🎧">(
        "\nYou need to launch your own record label before you can level up these traits.");
  }
  if (!hasEnergy(state, traitCost(state, trait))) return bounce();
  if (isFinished(state, trait)) return {};
  state.*trait.level = nextLevel(state, trait);
  pay(game, traitCost(state, trait));
  state.*trait.cost += game.random.element(energyCostMultiples) * trait.energyPerLevel;
  game.save(trait.level, trait.cost);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
