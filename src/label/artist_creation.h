// An artist after the player's own idea.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "label/scouted_artist.h"

namespace backbeat {

inline constexpr Price createArtistCost = {.energy = 75};

/// What points can be put on, in the order of the screen.
struct ArtistPoint {
  std::string_view key;  ///< as a press names it
  std::string_view title;
  int64_t ScoutedArtist::*value;
  /// A value below it can still be raised; charisma's is one higher, which no even value notices: intended.
  int64_t mostToRaise;
};
inline constexpr std::array<ArtistPoint, 6> artistPoints = {{
    {"charisma", "CHARISMA", &ScoutedArtist::charisma, 100},
    {"rhythm", "RHYTHM", &ScoutedArtist::rhythm, 99},
    {"songwriting", "SONGWRITING", &ScoutedArtist::songwriting, 99},
    {"virality", "VIRALITY", &ScoutedArtist::virality, 99},
    {"vocals", "VOCALS", &ScoutedArtist::vocals, 99},
    {"talent", "TALENT", &ScoutedArtist::talent, 99},
}};

/// An idea that is being worked out: points on the artist, and points left.
struct ArtistIdea {
  ScoutedArtist artist = {};
  int64_t remaining = 0;
};

/// At the door of the screen. Refused without anybody in Artist & Repertoire.
Outcome beginArtist(Game& game);

/// Points to begin with: five times what the scouts come to with the player's recruiting.
int64_t totalTraitPoints(const GameState& state);

/// Whether two points more (1) can be put there, or two taken away (-1).
bool canStepPoint(const ArtistIdea& idea, const ArtistPoint& point, int64_t way);

/// The points of a step go from one to the other; what cannot be changes nothing.
void stepPoint(ArtistIdea& idea, const ArtistPoint& point, int64_t way);

/// The idea gets its listeners and a demo, and waits among those whom the scouts know. Refused without a name, then
/// without the energy.
Outcome createArtist(Game& game, const ArtistIdea& idea);

}  // namespace backbeat
