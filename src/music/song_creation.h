// Making a song: what it costs, how good it turns out, and where it goes.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr int64_t songEnergy = 10;

/// What the player chose for the song in preparation.
struct SongDraft {
  std::string title;  ///< as typed
  int64_t finalSongWritingRating = 0;
  int64_t finalMusicalityRating = 0;
  int64_t finalStudioRating = 0;
  int64_t productionCost = 0;    ///< dollars of the three choices together, without guests
  std::string album = "Single";  ///< title of an album in production, or "Single"
  std::vector<int64_t> guests;   ///< picked ids, at most three
  bool isExplicit = false;       ///< the switch
  int64_t genre = 0;
};

/// The energy, and the dollars for the three choices and the guests, each guest at the contract's discount.
Price costToProduceSong(const GameState& state, const SongDraft& draft);

/// The built-in album on which singles count; appended first when no album at all is in production.
void ensureSingleAlbum(Game& game);

/// Rating of the recording: a roll over musicality and studio in full, writing and charisma at three quarters.
double productionRoll(Random& random, const SongDraft& draft, int64_t charisma, double viralityRoll);

/// Creates the song. Refused without 10 energy (the energy figure shakes), without the money, and for a title that is
/// empty or taken by another song ignoring case; nothing is paid then. Only a refused title is `Result::refused`;
/// success asks the screen to close.
Outcome createSong(Game& game, const SongDraft& draft);

/// Whether another song has this title, ignoring case and white space around it.
bool songTitleTaken(const GameState& state, const std::string& title);

}  // namespace backbeat
