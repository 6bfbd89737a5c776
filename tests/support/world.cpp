#include "support/world.h"

#include "shell/registry.h"

namespace backbeat {

World::World() { game.rooms = rooms(); }

void World::settle() {
  forEachField<GameState>([&](const auto& field) { game.save(field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(state, scalar);
  game.saveFile.commit();
}

Song songInProduction(int64_t songId, const std::string& title) {
  Song song;
  song.songId = songId;
  song.title = title;
  song.album = "Single";
  song.productionRating = 40;
  song.viralityScore = 5;
  song.features = {""};
  song.marketingScore = 10;
  song.streamPayRate = 0.001;
  song.percentageOfEarnings = 1;
  return song;
}

Song releasedSong(int64_t songId, const std::string& title) {
  Song song = songInProduction(songId, title);
  song.isReleased = true;
  song.releaseWeek = 1;
  song.releaseYear = 2023;
  return song;
}

Album releasedAlbum(int64_t albumId, const std::string& title) {
  Album album;
  album.albumId = albumId;
  album.title = title;
  album.isReleased = true;
  album.songCount = 1;
  album.releaseWeek = 1;
  album.releaseYear = 2023;
  album.chartRanking = 1000;
  album.price = 3.99;
  album.marketingScore = 5;
  album.percentageOfEarnings = 1;
  return album;
}

}  // namespace backbeat
