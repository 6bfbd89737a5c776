#include "music/song_release.h"

#include "career/label_contract.h"
#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr int64_t mostBoosts = 8;  // offered up to this count, so nine in all
constexpr double fullScore = 100;

}  // namespace

std::optional<size_t> songPosition(const GameState& state, int64_t songId) {
  const size_t found = state.saveAllSongList.find([&](const Song& song) { return song.songId == songId; });
  if (found == state.saveAllSongList.size()) return std::nullopt;
  return found;
}

std::optional<Price> productionBoostCost(const Song& song) {
  if (song.isReleased || song.productionBoostCount > mostBoosts || !(song.productionRating < fullScore)) return {};
  return Price{.energy = truncate(static_cast<double>(song.productionBoostCount + 3) * 1.5)};
}

std::optional<Price> viralityBoostCost(const Song& song) {
  if (song.isReleased || song.viralityBoostCount > mostBoosts || !(song.viralityScore < fullScore)) return {};
  return Price{.energy = truncate(static_cast<double>(song.viralityBoostCount + 10) * 1.75)};
}

Outcome boostProduction(Game& game, int64_t songId) {
  const auto position = songPosition(game.state, songId);
  const auto cost = position ? productionBoostCost(game.state.saveAllSongList[*position]) : std::nullopt;
  if (!cost) return {};
  if (!hasEnergy(game.state, *cost)) return bounce();
  pay(game, *cost);
  game.state.saveAllSongList.update(*position, [](Song& song) {
    song.productionBoostCount += 1;
    song.productionRating += 1.5;
  });
  game.save(&GameState::saveAllSongList);
  stateChanged(game);
  return success();
}

Outcome boostVirality(Game& game, int64_t songId) {
  const auto position = songPosition(game.state, songId);
  const auto cost = position ? viralityBoostCost(game.state.saveAllSongList[*position]) : std::nullopt;
  if (!cost) return {};
  if (!hasEnergy(game.state, *cost)) return bounce();
  pay(game, *cost);
  game.state.saveAllSongList.update(*position, [](Song& song) {
    song.viralityBoostCount += 1;
    song.viralityScore += 0.5;
  });
  game.save(&GameState::saveAllSongList);
  stateChanged(game);
  return success();
}

Outcome releaseSong(Game& game, int64_t songId) {
  GameState& state = game.state;
  const auto position = songPosition(state, songId);
  if (!position || state.saveAllSongList[*position].isReleased) return {};
  if (!hasEnergy(state, releaseCost)) {
    return noEnergy<"⚡️Not Enough Energy⚡️">("\nYou do not have enough energy to release this song.");
  }
  pay(game, releaseCost);
  state.saveAllSongList.update(*position, [&](Song& song) {
    song.isReleased = true;
    song.releaseWeek = state.weekNumberForTracking;
    song.releaseYear = state.yearNumber;
  });
  if (state.saveAllSongList[*position].marketingScore > strongMarketing) state.globalMarketingCampaigns += 1;
  recordSongRelease(game);
  game.save(&GameState::saveAllSongList, &GameState::globalMarketingCampaigns);
  stateChanged(game);
  return success();
}

Outcome announceSong(const GameState& state, int64_t songId) {
  const auto position = songPosition(state, songId);
  if (!position || state.saveAllSongList[*position].isReleased) return {};
  if (songAnnounced(state, songId)) {
    return refuse<"🐥 Announcement Made 🐥">(
        "\nYou already made an annoucement and earned a virality bonus for this song.");
  }
  return goTo("goToCreateTwitterMessage", std::to_string(songId));
}

}  // namespace backbeat
