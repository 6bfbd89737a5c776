#include "live/screens/set_list_words.h"

#include "live/festival_invitation.h"

namespace backbeat {

std::string setListCount(const std::vector<int64_t>& setList) {
  return std::to_string(setList.size()) + " of " + std::to_string(mostSongsOfSetList);
}

const Song* releasedSongOf(const GameState& state, int64_t songId) {
  const RecordList<Song>& songs = state.saveAllSongList;
  const size_t found = songs.find([&](const Song& song) { return song.songId == songId && song.isReleased; });
  return found == songs.size() ? nullptr : &songs[found];
}

}  // namespace backbeat
