#include "recognition/builders.h"

#include "music/builders.h"
#include "recognition/award_fields.h"

namespace backbeat {

int64_t addSongOfYear(GameState& state, const std::string& title, double rating, int64_t genre) {
  Song song = releasedSong(state.songId += 3, title);
  song.releaseYear = state.yearNumber;
  song.releaseWeek = state.weekNumberForTracking - 4;
  song.productionRating = rating;
  state.saveAllSongList.append(std::move(song));
  if (genre >= 0) state.songGenres.append({state.songId, genre});
  return state.songId;
}

int64_t addAlbumOfYear(GameState& state, const std::string& title, double rating, int64_t genre) {
  Album album = releasedAlbum(state.albumId += 3, title);
  album.releaseYear = state.yearNumber;
  album.releaseWeek = state.weekNumberForTracking - 4;
  album.productionRating = rating;
  album.songCount = 5;
  state.saveAllAlbumList.append(std::move(album));
  for (int track = 1; track <= 5; ++track) {
    // Old singles that the album collects, so that they compete with nobody.
    addSongOfYear(state, title + ", Track " + std::to_string(track), 40, genre);
    state.saveAllSongList.update(state.saveAllSongList.size() - 1, [&](Song& song) {
      song.album = title;
      song.albumId = state.albumId;
      song.releaseYear -= 1;
      song.releaseWeek -= 52;
    });
  }
  return state.albumId;
}

int64_t addLabelSongOfYear(GameState& state, int64_t artistId, const std::string& title, double rating) {
  SignedArtistSong song;
  song.songId = state.signedArtistSongId += 1;
  song.title = title;
  song.artistId = artistId;
  song.artistName = state.saveAllSignedArtistList[static_cast<size_t>(artistId - 1)].name;
  song.isReleased = true;
  song.releaseWeek = state.weekNumberForTracking - 4;
  song.releaseYear = state.yearNumber;
  song.productionRating = rating;
  song.features = {""};
  song.percentageOfEarnings = 0.8;
  state.saveAllSignedArtistSongList.append(std::move(song));
  return state.signedArtistSongId;
}

int64_t addLabelAlbumOfYear(GameState& state, int64_t artistId, const std::string& title, double rating) {
  SignedArtistAlbum album;
  album.albumId = state.signedArtistAlbumId += 1;
  album.artistId = artistId;
  album.title = title;
  album.isReleased = true;
  album.releaseWeek = state.weekNumberForTracking - 4;
  album.releaseYear = state.yearNumber;
  album.productionRating = rating;
  album.price = 9.99;
  album.percentageOfEarnings = 0.8;
  state.saveAllSignedArtistAlbumList.append(std::move(album));
  return state.signedArtistAlbumId;
}

void openNominations(GameState& state) {
  state.awardYear.assign({AwardYear{.year = state.yearNumber, .stage = award_stage::nominated}});
  state.recordDictionary = {{"Velvet Static", "The Hollow Tides"},
                            {"Neon Orbit", "Saint Ferro"},
                            {"Last Mirage", "Ines Calloway"},
                            {"Opal Rain", "Juno Hale"}};
  state.albumDictionary = {{"Hidden Valley", "Lena Ashdown"}, {"Paper Kingdom", "Kid Ember"}};
  state.songDictionary = {{"Sweet Exit", "Otto Marsh"}, {"Frozen Motel", "Ada Holloway"}};
}

Award nominationFor(const GameState& state, int64_t typeOfAward, const std::string& title, int64_t genre) {
  Award award;
  award.typeOfAward = typeOfAward;
  award.nameOfAward = nameOfField(typeOfAward, genre);
  award.yearAwarded = state.yearNumber;
  award.artistName = state.myArtistsName;
  award.isSongOrAlbum = isForAlbums(typeOfAward) ? 1 : 0;
  award.songOrAlbumName = title;
  award.genreNumber = genre;
  return award;
}

void addNomination(GameState& state, Award award) {
  award.id = state.awardId += 1;
  if (award.yearAwarded == state.yearNumber && !state.awardYear.empty()) {
    const std::string title = award.songOrAlbumName;
    if (award.typeOfAward == award_type::record) state.recordDictionary[title] = award.artistName;
    if (award.typeOfAward == award_type::album) state.albumDictionary[title] = award.artistName;
    if (award.typeOfAward == award_type::song) state.songDictionary[title] = award.artistName;
    if (award.typeOfAward > award_type::nobodys) {
      state.awardYear.update(0, [&](AwardYear& year) {
        year.genreFields.push_back(
            {award.typeOfAward, award.genreNumber, {{title, award.artistName}, {"Quiet Carousel", "Nell Okafor"}}});
      });
    }
  }
  state.saveAllMusicAwards.append(std::move(award));
}

}  // namespace backbeat
