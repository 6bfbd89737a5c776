#include "shell/feedback.h"

#include "core/money.h"

namespace backbeat {

std::string feedbackFacts(const GameState& state) {
  return "Backbeat " + std::string(gameVersion) + "\nWeek " + std::to_string(state.weekNumber) + ", " +
         std::to_string(state.yearNumber) + ", generation " + std::to_string(state.saveAllLegacyList.size() + 1) +
         "\n" + counted(static_cast<int64_t>(state.saveAllSongList.size()), "song") + ", " +
         counted(static_cast<int64_t>(state.saveAllAlbumList.size()), "album") +
         (state.isLabelLaunched >= 1 ? ", own label" : "") + (state.onTour >= 1 ? ", on tour" : "") +
         (state.assisted >= 1 ? ", assisted" : "");
}

}  // namespace backbeat
