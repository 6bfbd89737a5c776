// The streams of other artists' songs with a verse of the player.
#pragma once

#include "core/game.h"

namespace backbeat {

/// The weeks such a song still lives: its rating less its age. It streams while this is above 0, then is silent for
/// ever.
double remainingLife(const GameState& state, const FeaturedOn& verse);

/// Whether no turn moves, charts or counts it any more: its life is over, it is on no chart, and its fee is told.
bool isForgotten(const GameState& state, const FeaturedOn& verse);
/// Lets forgotten verses sleep. Called when a turn begins.
void letForgottenVersesSleep(GameState& state);

/// Step 7 of the turn; runs with and without a label. Each song streams by marketing and virality while its marketing
/// lasts, with no listeners of anybody's counted in, and by what it has streamed so far after that. Expects the chart
/// of the week to have been opened.
void simulateFeaturedOnStreams(Game& game);

}  // namespace backbeat
