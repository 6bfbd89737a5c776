#include "social/builders.h"

#include <utility>

#include "support/dates.h"

namespace backbeat {

void addChirp(GameState& state, const std::string& message, int64_t weeksAgo) {
  Chirp chirp;
  chirp.id = ++state.chirpId;
  chirp.artistName = state.myArtistsName;
  chirp.message = message;
  chirp.timestamp = dateOf(state, weeksAgo);
  chirp.likeCount = 120;
  chirp.reChirpCount = 30;
  chirp.commentCount = 8;
  chirp.songId = chirp.albumId = -1;
  state.saveAllChirpList.insertFront(std::move(chirp));
}

}  // namespace backbeat
