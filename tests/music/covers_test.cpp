#include "music/covers.h"

#include <gtest/gtest.h>

namespace backbeat {
namespace {

TEST(Covers, AFanHasEachSleeveOnceAndRoomForThree) {
  GameState state;
  const auto add = [&](int64_t songId, const char* title, int64_t albumId) {
    Song song;
    song.songId = songId;
    song.title = title;
    song.albumId = albumId;
    state.saveAllSongList.append(song);
  };
  state.saveAllAlbumCovers.append({.albumId = 4, .imageString = "First Light"});
  add(2, "Tide", 4);
  add(5, "Ember", 4);  // in the sleeve of the same album
  add(8, "Static", 0);
  add(11, "Harbour", 0);
  add(14, "Late Train", 0);
  const auto namesOf = [&](const std::vector<int64_t>& songIds) {
    Row row;
    fanOutCovers(row, state, songIds);
    std::vector<std::string> names = {row.picture.name};
    for (const Picture& picture : row.fan) names.push_back(picture.name);
    return names;
  };
  EXPECT_EQ(namesOf({2, 5, 8, 77, 11, 14}), (std::vector<std::string>{"First Light", "Static", "Harbour"}));
  EXPECT_EQ(namesOf({5, 2}), std::vector<std::string>{"First Light"});
  EXPECT_EQ(namesOf({77}), std::vector<std::string>{""}) << "a song that is gone leaves the row's own picture";
}

}  // namespace
}  // namespace backbeat
