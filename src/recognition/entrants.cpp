#include "recognition/entrants.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

#include "core/sorting.h"
#include "music/genres.h"

namespace backbeat {

namespace {

constexpr int64_t fewestSongs = 5;
constexpr auto genreCount = static_cast<int64_t>(genres.size());

using GenreOfSong = std::map<int64_t, int64_t>;

GenreOfSong ownGenres(const GameState& state) {
  GenreOfSong known;
  for (const SongGenre& made : state.songGenres) {
    if (made.genreNumber >= 0 && made.genreNumber < genreCount) known[made.songId] = made.genreNumber;
  }
  return known;
}

int64_t genreOfSong(const GenreOfSong& known, int64_t songId) {
  const auto found = known.find(songId);
  return found == known.end() ? noGenre : found->second;
}

/// What most songs of each album are in; the lowest number where two are equal.
std::map<int64_t, int64_t> genresOfAlbums(const GameState& state, const GenreOfSong& known) {
  std::map<int64_t, std::array<int64_t, genres.size()>> songs;
  for (const Song& song : state.saveAllSongList) {
    const int64_t genre = genreOfSong(known, song.songId);
    if (genre != noGenre) songs[song.albumId][static_cast<size_t>(genre)] += 1;
  }
  std::map<int64_t, int64_t> most;
  for (const auto& [albumId, counts] : songs) {
    most[albumId] = std::distance(counts.begin(), std::max_element(counts.begin(), counts.end()));
  }
  return most;
}

/// Artists of the label keep to one genre, which follows from their id and is written nowhere.
int64_t genreOfArtist(int64_t artistId) { return artistId < 1 ? noGenre : (artistId - 1) % genreCount; }

void bestFirst(std::vector<Entrant>& entrants) {
  sortStably(entrants, [](const Entrant& a, const Entrant& b) { return a.rating > b.rating; });
}

template <class T>
bool isOfThisYear(const GameState& state, const T& work) {
  return work.isReleased && work.releaseYear == state.yearNumber;
}

void addOwn(const GameState& state, Entrants& entrants) {
  const GenreOfSong known = ownGenres(state);
  for (const Song& song : state.saveAllSongList) {
    if (!isOfThisYear(state, song)) continue;
    entrants.songs.push_back(
        {song.songId, song.title, state.myArtistsName, song.productionRating, genreOfSong(known, song.songId)});
  }
  const auto ofAlbums = genresOfAlbums(state, known);
  for (const Album& album : state.saveAllAlbumList) {
    if (album.albumId <= 0 || album.songCount < fewestSongs || !isOfThisYear(state, album)) continue;
    entrants.albums.push_back({album.albumId, album.title, state.myArtistsName, album.productionRating,
                               genreOfSong(ofAlbums, album.albumId)});
  }
}

void addLabel(const GameState& state, Entrants& entrants) {
  for (const SignedArtistSong& song : state.saveAllSignedArtistSongList) {
    if (!isOfThisYear(state, song)) continue;
    entrants.labelSongs.push_back(
        {song.songId, song.title, song.artistName, song.productionRating, genreOfArtist(song.artistId)});
  }
  std::map<int64_t, std::string> names;
  for (const SignedArtist& artist : state.saveAllSignedArtistList) names[artist.artistId] = artist.name;
  for (const SignedArtistAlbum& album : state.saveAllSignedArtistAlbumList) {
    if (!isOfThisYear(state, album)) continue;
    entrants.labelAlbums.push_back(
        {album.albumId, album.title, names[album.artistId], album.productionRating, genreOfArtist(album.artistId)});
  }
}

}  // namespace

Entrants entrantsOf(const GameState& state) {
  Entrants entrants;
  addOwn(state, entrants);
  addLabel(state, entrants);
  for (auto* list : {&entrants.songs, &entrants.albums, &entrants.labelSongs, &entrants.labelAlbums}) bestFirst(*list);
  return entrants;
}

std::set<int64_t> genresOf(const Entrants& entrants) {
  std::set<int64_t> reached;
  for (const auto* list : {&entrants.songs, &entrants.albums, &entrants.labelSongs, &entrants.labelAlbums}) {
    for (const Entrant& entrant : *list) reached.insert(entrant.genreNumber);
  }
  reached.erase(noGenre);
  return reached;
}

std::vector<Entrant> ofGenre(const std::vector<Entrant>& entrants, int64_t genreNumber) {
  std::vector<Entrant> found;
  std::copy_if(entrants.begin(), entrants.end(), std::back_inserter(found),
               [&](const Entrant& entrant) { return entrant.genreNumber == genreNumber; });
  return found;
}

}  // namespace backbeat
