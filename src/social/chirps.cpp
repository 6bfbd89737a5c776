#include "social/chirps.h"

#include <algorithm>
#include <optional>

#include "core/calendar.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr int64_t fansForFollowers = 26;
constexpr double announcementVirality = 1;

/// Draws likes, comments and re-chirps of a post that `audience` people may see. Each is cut from uncut products.
void drawCounts(Random& random, Chirp& chirp, int64_t audience) {
  const double likes = static_cast<double>(audience) * random.uniformDouble(0.005, 0.02);
  const double comments = likes * random.uniformDouble(0.05, 0.2);
  const double reChirps = likes * random.uniformDouble(0.05, 0.2);
  chirp.likeCount = truncate(likes);
  chirp.commentCount = truncate(comments);
  chirp.reChirpCount = truncate(reChirps);
}

Chirp artistsChirp(Game& game, const std::string& message) {
  Chirp chirp;
  chirp.id = ++game.state.chirpId;
  chirp.artistName = game.state.myArtistsName;
  chirp.message = message;
  chirp.timestamp = game.clock.now();
  chirp.imageString = chirpProfilePicture;
  chirp.typeOfAccount = account::player;
  chirp.songId = -1;
  chirp.albumId = -1;
  return chirp;
}

/// Who posts that is not the artist.
struct Other {
  int64_t artistId;
  const std::string& name;
  const std::string& imageString;
  int64_t typeOfAccount;
};

void postForOther(Game& game, const Other& other, const std::string& message, double fewestReaders,
                  double mostReaders) {
  Chirp chirp = artistsChirp(game, message);
  chirp.artistId = other.artistId;
  chirp.artistName = other.name;
  chirp.imageString = other.imageString;
  chirp.typeOfAccount = other.typeOfAccount;
  const double share = game.random.uniformDouble(0.05, 0.2);
  const double likes = share * game.random.uniformDouble(fewestReaders, mostReaders);
  const double comments = likes * game.random.uniformDouble(0.1, 0.5);
  const double reChirps = likes * game.random.uniformDouble(0.1, 0.5);
  chirp.likeCount = truncate(likes);
  chirp.commentCount = truncate(comments);
  chirp.reChirpCount = truncate(reChirps);
  game.state.saveAllChirpList.insertFront(std::move(chirp));
  game.save(&GameState::chirpId, &GameState::saveAllChirpList);
}

size_t positionOf(const GameState& state, int64_t id) {
  return state.saveAllChirpList.find([&](const Chirp& chirp) { return chirp.id == id; });
}

/// The announced song's place in the list while it is in production.
std::optional<size_t> songInProduction(const GameState& state, int64_t songId) {
  const RecordList<Song>& songs = state.saveAllSongList;
  const size_t found = songs.find([&](const Song& song) { return song.songId == songId && !song.isReleased; });
  if (found == songs.size()) return std::nullopt;
  return found;
}

}  // namespace

bool songAnnounced(const GameState& state, int64_t songId) {
  return std::any_of(state.saveAllChirpList.begin(), state.saveAllChirpList.end(),
                     [&](const Chirp& chirp) { return chirp.songId == songId; });
}

void seedFollowers(Game& game) {
  GameState& state = game.state;
  if (state.totalFans < fansForFollowers || state.assignFollowers != 0) return;
  state.followerCount = truncate(static_cast<double>(state.totalFans) * game.random.uniformDouble(0.3, 0.6));
  state.assignFollowers = 1;
  game.save(&GameState::followerCount, &GameState::assignFollowers);
}

Outcome postChirp(Game& game, const std::string& message, int64_t songId) {
  GameState& state = game.state;
  if (message.empty()) {
    return refuse<"🐥 Chirp Needed 🐥">("\nIn order to Chirp, you'll need to write something chirp worthy!");
  }
  if (!hasEnergy(state, chirpCost)) return noEnergy("\nYou don't have enough energy for this chirp!");
  pay(game, chirpCost);
  Chirp chirp = artistsChirp(game, message);
  drawCounts(game.random, chirp, state.followerCount);
  const auto song = songInProduction(state, songId);
  if (song && !songAnnounced(state, songId)) {
    chirp.songId = songId;
    state.saveAllSongList.update(*song, [](Song& announced) { announced.viralityScore += announcementVirality; });
    game.save(&GameState::saveAllSongList);
  }
  state.saveAllChirpList.insertFront(std::move(chirp));
  game.save(&GameState::chirpId, &GameState::saveAllChirpList);
  stateChanged(game);
  return success();
}

void postChirpForArtist(Game& game, const std::string& message, int64_t audience, int64_t albumId) {
  Chirp chirp = artistsChirp(game, message);
  chirp.albumId = albumId;
  drawCounts(game.random, chirp, audience);
  game.state.saveAllChirpList.insertFront(std::move(chirp));
  game.save(&GameState::chirpId, &GameState::saveAllChirpList);
}

void postChirpForPerson(Game& game, int64_t artistId, const std::string& name, const std::string& imageString,
                        const std::string& message) {
  postForOther(game, {artistId, name, imageString, account::person}, message, 100, 10'000);
}

void postChirpForCompany(Game& game, int64_t artistId, const std::string& name, const std::string& imageString,
                         const std::string& message) {
  postForOther(game, {artistId, name, imageString, account::company}, message, 50'000, 5'000'000);
}

Outcome pinChirp(Game& game, int64_t id) {
  RecordList<Chirp>& chirps = game.state.saveAllChirpList;
  if (positionOf(game.state, id) == chirps.size()) return {};
  for (size_t i = 0; i < chirps.size(); ++i) {
    const int64_t pinned = chirps[i].id == id ? 1 : 0;
    if (chirps[i].isPinned != pinned) chirps.update(i, [&](Chirp& chirp) { chirp.isPinned = pinned; });
  }
  game.save(&GameState::saveAllChirpList);
  return success();
}

Outcome unpinChirp(Game& game, int64_t id) {
  RecordList<Chirp>& chirps = game.state.saveAllChirpList;
  const size_t found = positionOf(game.state, id);
  if (found == chirps.size()) return {};
  chirps.update(found, [](Chirp& chirp) { chirp.isPinned = 0; });
  game.save(&GameState::saveAllChirpList);
  return success();
}

bool chirpDeletable(const GameState& state, const Chirp& chirp) {
  return chirp.songId < 0 || !songInProduction(state, chirp.songId);
}

Outcome deleteChirp(Game& game, int64_t id) {
  RecordList<Chirp>& chirps = game.state.saveAllChirpList;
  const size_t found = positionOf(game.state, id);
  if (found == chirps.size() || !chirpDeletable(game.state, chirps[found])) return {};
  chirps.erase(found);
  game.save(&GameState::saveAllChirpList);
  return success();
}

std::vector<size_t> chirpsInOrder(const GameState& state) {
  std::vector<size_t> order;
  const RecordList<Chirp>& chirps = state.saveAllChirpList;
  for (size_t i = 0; i < chirps.size(); ++i) {
    if (chirps[i].isPinned >= 1) order.push_back(i);
  }
  for (size_t i = 0; i < chirps.size(); ++i) {
    if (chirps[i].isPinned < 1) order.push_back(i);
  }
  return order;
}

Picture portraitOf(const GameState& state, const Chirp& chirp) {
  if (chirp.typeOfAccount == account::player) return artistPicture(state, chirp.artistName);
  if (chirp.typeOfAccount == account::company) {
    return drawn(Picture::Kind::mark, chirp.imageString.substr(0, chirp.imageString.find('.')), chirp.artistName);
  }
  // A partner keeps the face under another name.
  return person(chirp.artistId >= account::firstPartner ? chirp.imageString : chirp.artistName);
}

std::string chirpAge(const Chirp& chirp, Date now) {
  const double hours = std::clamp((now.seconds - chirp.timestamp.seconds) / 3600, 0.0, 1e9);
  return std::to_string(truncate(hours)) + "h";
}

}  // namespace backbeat
