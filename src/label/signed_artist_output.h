// What the label's artists stream and sell each week. What is out keeps earning when its artist was dropped; an artist
// who is not there any more lends it no listeners.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Weeks that the song still streams: its rating less its age. At 0 it is silent for good.
double remainingLife(const GameState& state, const SignedArtistSong& song);

/// Whether a song or an album streams or sells no more, for good: its life is over.
bool isSilent(const GameState& state, const SignedArtistSong& song);
bool isSilent(const GameState& state, const SignedArtistAlbum& album);
/// Lets what is silent sleep. Called when a turn begins.
void letSilentArtistsSleep(GameState& state);

/// Step 6 of the turn, first half; runs while the label is launched. A song streams by the artist's listeners and its
/// marketing while that lasts, and by what it has streamed so far after that. Expects the chart of the week to have
/// been opened. Songs that have fallen silent are not looked at.
void simulateSignedArtistStreams(Game& game);

/// Step 6 of the turn, second half: the same of albums, by what their songs have come to by then.
void simulateSignedArtistAlbumSales(Game& game);

}  // namespace backbeat
