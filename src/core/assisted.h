// The mark of a career that has taken packs: beside what it has reached, wherever that is told.
#pragma once

#include "core/game_state.h"
#include "core/view_words.h"

namespace backbeat {

/// Adds the mark, where the career carries it.
inline void addAssistedMark(View& view, const GameState& state) {
  if (state.assisted >= 1) view.add(caption("🎁 Assisted: packs were taken in this career.", Tone::warning));
}

}  // namespace backbeat
