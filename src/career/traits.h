// The artist's skills: what each is good for, and what its next level costs.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// One skill. A level is bought with energy and is set from what was paid, never counted up by one.
struct Trait {
  std::string_view key;  ///< as a press names it
  std::string_view title;
  std::string_view icon;
  std::string_view effect;  ///< what it is good for, in two or three words: a row is narrow
  int64_t GameState::*level;
  int64_t GameState::*cost;    ///< energy that the next level takes
  int64_t energyPerLevel = 1;  ///< 2 for virality and the business traits
  int64_t highestLevel = 110;  ///< no further level from here on; the last one may lie a few points above it
  bool needsLabel = false;     ///< the business traits: only for the head of a label
};

/// The six artist traits, then the five business traits.
inline constexpr std::array<Trait, 11> traits = {{
    {"vocalRange", "Vocals", "mic", "Half of your music", &GameState::vocalRange, &GameState::vocalRangeEnergyCost},
    {"songWriting", "Songwriting", "pencil", "Your own writing", &GameState::songWriting,
     &GameState::songWritingEnergyCost},
    {"rhythm", "Rhythm", "guitar", "The other half of it", &GameState::rhythm, &GameState::rhythmEnergyCost},
    {"charisma", "Charisma", "star", "Lifts every recording", &GameState::charisma, &GameState::charismaEnergyCost},
    {"virality", "Virality", "flame", "A larger audience", &GameState::virality, &GameState::viralityEnergyCost, 2},
    {"directing", "Directing", "video", "Your own videos", &GameState::directing, &GameState::directingEnergyCost},
    {"businessTrait1", "Leadership", "people", "Cheaper coaching", &GameState::businessTrait1,
     &GameState::businessTraitCost1, 2, 50, true},
    {"businessTrait2", "Marketing", "megaphone", "+2 for Publicity a level", &GameState::businessTrait2,
     &GameState::businessTraitCost2, 2, 50, true},
    {"businessTrait3", "Negotiation", "document", "+2 for Legal a level", &GameState::businessTrait3,
     &GameState::businessTraitCost3, 2, 50, true},
    {"businessTrait4", "Recruiting", "guest", "+2 for A&R a level", &GameState::businessTrait4,
     &GameState::businessTraitCost4, 2, 50, true},
    {"businessTrait5", "Sales", "cash", "+2 for Sales a level", &GameState::businessTrait5,
     &GameState::businessTraitCost5, 2, 50, true},
}};

/// The trait of that key, or nullptr.
const Trait* traitNamed(std::string_view key);

/// What the next level costs.
Price traitCost(const GameState& state, const Trait& trait);

/// The level that the next press gives; it can be the level of now, as with the first press of a business trait.
int64_t nextLevel(const GameState& state, const Trait& trait);

/// Whether a press gives nothing more.
bool isFinished(const GameState& state, const Trait& trait);

/// Levels a trait up. A business trait is refused without a label of one's own; then too little energy shakes the
/// energy figure; a finished trait takes nothing and gives nothing. The level becomes the cost (half of it where a
/// level costs two), so that the last press can end a few points above the highest level: intended.
Outcome levelUpTrait(Game& game, const Trait& trait);

}  // namespace backbeat
