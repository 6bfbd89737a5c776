#include "label/album_review.h"

#include <algorithm>
#include <array>

#include "career/skill.h"
#include "career/studio.h"
#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "label/departments.h"
#include "label/roster.h"
#include "label/scouting.h"
#include "music/guests.h"
#include "music/title_pools.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 5> releaseQuotesStart = {
    "Today I'll be releasing my", "Dropping today, my",  "Can't believe it's finished! My",
    "Excited to share my",        "Streaming today! My",
};
constexpr std::array<std::string_view, 6> releaseQuotesEnd = {
    "a brand new album I've poured everything into, enjoy!",
    "streaming now!",
    "available everywhere!",
    "thrilled for you to listen!",
    "can't wait for you to listen!",
    "tell me what you think!",
};

constexpr int64_t fewestSongs = 8;
constexpr int64_t mostSongsMore = 3;
constexpr int64_t lastFeatureSlot = 7;
/// An eighth of the sum, whatever the number of songs: intended.
constexpr double ratingShare = 0.125;
constexpr double albumPrice = 9.99;
constexpr int64_t leastMarketing = 10;
constexpr int64_t sellersToCount = 7;  ///< a worse mean of Sales & Distribution moves nothing
constexpr int64_t chirpIdsOfArtists = 300'000;

/// What all songs of an album share.
struct Session {
  const SignedArtist& artist;
  std::vector<FeaturedArtist> guests;  ///< those who would sing with the artist
  int64_t featureSlot = 0;
  int64_t maxMarketingDeptScore = 0;
  int64_t studio = 0;
};

std::string drawTitle(Random& random) {
  const std::string first(random.element(firstTitleWords));
  return first + " " + std::string(random.element(secondTitleWords));
}

std::vector<FeaturedArtist> eligibleGuests(const GameState& state, const SignedArtist& artist) {
  std::vector<FeaturedArtist> guests = guestTable(state);
  std::erase_if(guests, [&](const FeaturedArtist& guest) { return guest.minimumRating > artistRating(artist); });
  return guests;
}

int64_t maxMarketing(const GameState& state, const DepartmentStanding& publicity) {
  return std::max(leastMarketing, (publicity.ratings + 2 * state.businessTrait2) / (publicity.staff + 1));
}

int64_t drawAlbumMarketing(Random& random, const GameState& state, int64_t sellers) {
  if (sellers < sellersToCount) return state.labelMarketingBoost + 6;
  return random.integer(0, sellers - 5) + 5 + state.labelMarketingBoost;
}

SignedArtistSong drawSong(Game& game, const Session& session, int64_t index) {
  const GameState& state = game.state;
  const SignedArtist& artist = session.artist;
  SignedArtistSong song;
  song.songId = state.signedArtistSongId;
  song.title = drawTitle(game.random);
  song.albumId = state.signedArtistAlbumId;
  song.artistId = artist.artistId;
  song.artistName = artist.name;
  song.isReleased = true;
  song.releaseWeek = state.weekNumberForTracking;
  song.releaseYear = state.yearNumber;
  const double viralityRoll = drawViralityRoll(game.random, std::max<int64_t>(artist.virality, 1));
  song.productionRating = demoRating(game.random, session.studio, asScouted(artist), viralityRoll);
  song.viralityScore = viralityRoll + static_cast<double>(state.labelViralityBoost + game.random.integer(0, 3));
  song.marketingScore = static_cast<double>(game.random.integer(leastMarketing, session.maxMarketingDeptScore) +
                                            state.labelMarketingBoost);
  song.features = {""};
  if (index == session.featureSlot && !session.guests.empty()) {
    const FeaturedArtist& guest = game.random.element(session.guests);  // sings for nothing: intended
    song.features.push_back(guest.name);
    song.viralityScore += guest.virality / 2;
  }
  song.isExplicit = game.random.integer(0, 3) == 0 ? 1 : 0;
  song.streamPayRate = state.labelStreamingRate;
  song.percentageOfEarnings = artist.labelRevenuePercentage;
  return song;
}

/// Draws the songs and puts them on the list. The sum of their ratings.
double record(Game& game, const Session& session, int64_t count) {
  double ratings = 0;
  for (int64_t i = 0; i < count; ++i) {
    game.state.signedArtistSongId += 1;
    SignedArtistSong song = drawSong(game, session, i);
    ratings += song.productionRating;
    game.state.saveAllSignedArtistSongList.append(std::move(song));
  }
  return ratings;
}

SignedArtistAlbum pressed(const GameState& state, const SignedArtist& artist) {
  SignedArtistAlbum album;
  album.albumId = state.signedArtistAlbumId;
  album.artistId = artist.artistId;
  album.isReleased = true;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  album.price = albumPrice;
  album.percentageOfEarnings = artist.labelRevenuePercentage;
  return album;
}

void announce(Game& game, const SignedArtist& artist, const std::string& title) {
  GameState& state = game.state;
  const double reach = static_cast<double>(artist.monthlyListeners) * game.random.uniformDouble(0.05, 0.2);
  Chirp chirp;
  chirp.id = ++state.chirpId;
  chirp.artistId = chirpIdsOfArtists + artist.artistId;
  chirp.artistName = artist.name;
  chirp.timestamp = game.clock.now();
  chirp.likeCount = truncate(reach);
  chirp.commentCount = truncate(reach * game.random.uniformDouble(0.1, 0.5));
  chirp.reChirpCount = truncate(reach * game.random.uniformDouble(0.1, 0.5));
  chirp.imageString = artist.name;
  chirp.typeOfAccount = account::signedArtist;
  chirp.songId = -1;
  chirp.albumId = -1;
  const auto albums = static_cast<int64_t>(state.saveAllSignedArtistAlbumList.historyOf(artist.artistId).size());
  const std::string opening(game.random.element(releaseQuotesStart));
  chirp.message = opening + " " + ordinal(albums) + " studio album, " + title + " - " +
                  std::string(game.random.element(releaseQuotesEnd));
  state.saveAllChirpList.insertFront(std::move(chirp));
}

void releaseAlbum(Game& game, size_t position) {
  GameState& state = game.state;
  const SignedArtist& artist = state.saveAllSignedArtistList[position];
  const LabelRatings label = departmentRatings(state);
  SignedArtistAlbum album = pressed(state, artist);
  album.title = drawTitle(game.random);
  Session session{.artist = artist,
                  .guests = eligibleGuests(state, artist),
                  .featureSlot = game.random.integer(0, lastFeatureSlot),
                  .maxMarketingDeptScore = maxMarketing(state, label.departments[department::publicity]),
                  .studio = studioRating(state)};
  const int64_t songs = fewestSongs + game.random.integer(0, mostSongsMore);
  album.marketingScore =
      static_cast<double>(drawAlbumMarketing(game.random, state, label.departments[department::sales].rating));
  album.productionRating = record(game, session, songs) * ratingShare;
  const std::string title = album.title;
  state.saveAllSignedArtistAlbumList.append(std::move(album));
  const int64_t weeks = game.random.integer(30, 60);
  announce(game, artist, title);
  state.saveAllSignedArtistList.update(position,
                                       [&](SignedArtist& released) { released.weeksToCompleteAlbum = weeks; });
}

Outcome limitReached() {
  return refuse<"❌ Limit Reached ❌ ">("\nYou can only remove up to 2 songs from a signed artist's album.");
}

int64_t songsTakenOff(const Game& game, int64_t albumId) {
  const auto& taken = game.launch.label.songsTakenOff;
  const auto found = taken.find(albumId);
  return found == taken.end() ? 0 : found->second;
}

/// The song and its album, while it can still go.
struct LooseSong {
  size_t song = 0;
  size_t album = 0;
};

std::optional<LooseSong> looseSong(const GameState& state, int64_t songId) {
  const RecordList<SignedArtistSong>& songs = state.saveAllSignedArtistSongList;
  const size_t song = songs.find([&](const SignedArtistSong& each) { return each.songId == songId; });
  if (song == songs.size()) return std::nullopt;
  const size_t album = signedAlbumPosition(state, songs[song].albumId);
  if (album == state.saveAllSignedArtistAlbumList.size()) return std::nullopt;
  if (!canBeTrimmed(state, state.saveAllSignedArtistAlbumList[album])) return std::nullopt;
  return LooseSong{song, album};
}

double meanRating(const GameState& state, int64_t albumId) {
  double sum = 0;
  const auto songs = state.saveAllSignedArtistSongList.historyOf(albumId);
  for (const uint32_t position : songs) sum += state.saveAllSignedArtistSongList[position].productionRating;
  return songs.empty() ? 0 : sum / static_cast<double>(songs.size());
}

}  // namespace

Outcome reviewSongList(Game& game, int64_t artistId) {
  GameState& state = game.state;
  const size_t position = artistPosition(state, artistId);
  if (position == state.saveAllSignedArtistList.size()) return {};
  if (!albumWaits(state, state.saveAllSignedArtistList[position])) return {};
  if (!hasEnergy(state, reviewCost)) {
    return noEnergy("\nYou don't have the energy to review this song list right now.");
  }
  pay(game, reviewCost);
  state.signedArtistAlbumId += 1;
  releaseAlbum(game, position);
  game.save(&GameState::saveAllSignedArtistList, &GameState::saveAllSignedArtistSongList,
            &GameState::saveAllSignedArtistAlbumList, &GameState::signedArtistSongId, &GameState::signedArtistAlbumId,
            &GameState::saveAllChirpList, &GameState::chirpId);
  stateChanged(game);
  return goTo("goToSignedArtistSongList", std::to_string(state.signedArtistAlbumId));
}

bool canBeTrimmed(const GameState& state, const SignedArtistAlbum& album) {
  return album.releaseWeek == state.weekNumberForTracking;
}

Outcome askToRemoveSong(const Game& game, int64_t songId, Action confirmed) {
  const auto loose = looseSong(game.state, songId);
  if (!loose) return {};
  const SignedArtistAlbum& album = game.state.saveAllSignedArtistAlbumList[loose->album];
  if (songsTakenOff(game, album.albumId) >= mostSongsTakenOff) return limitReached();
  return ask<"❌ Remove Song? ❌ ">(
      "Are you sure you want to remove this song from " + album.title + " before it is released?", "No",
      {"Yes, Remove", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome removeSong(Game& game, int64_t songId) {
  GameState& state = game.state;
  const auto loose = looseSong(state, songId);
  if (!loose) return {};
  const int64_t albumId = state.saveAllSignedArtistAlbumList[loose->album].albumId;
  if (songsTakenOff(game, albumId) >= mostSongsTakenOff) return limitReached();
  game.launch.label.songsTakenOff[albumId] += 1;
  state.saveAllSignedArtistSongList.erase(loose->song);
  state.saveAllSignedArtistAlbumList.update(
      loose->album, [&](SignedArtistAlbum& album) { album.productionRating = meanRating(state, albumId); });
  game.save(&GameState::saveAllSignedArtistSongList, &GameState::saveAllSignedArtistAlbumList);
  return success();
}

size_t signedAlbumPosition(const GameState& state, int64_t albumId) {
  const RecordList<SignedArtistAlbum>& albums = state.saveAllSignedArtistAlbumList;
  return albums.find([&](const SignedArtistAlbum& album) { return album.albumId == albumId; });
}

std::string ordinal(int64_t number) {
  const int64_t lastTwo = number % 100;
  const bool isTeen = lastTwo >= 11 && lastTwo <= 13;
  const int64_t last = number % 10;
  const char* ending = isTeen ? "th" : last == 1 ? "st" : last == 2 ? "nd" : last == 3 ? "rd" : "th";
  return std::to_string(number) + ending;
}

}  // namespace backbeat
