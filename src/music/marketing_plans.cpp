#include "music/marketing_plans.h"

#include "core/calendar.h"
#include "core/purse.h"
#include "music/album_creation.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

void marketAlbum(GameState& state, size_t position, int64_t score) {
  const int64_t albumId = state.saveAllAlbumList[position].albumId;
  state.saveAllAlbumList.update(position, [&](Album& album) {
    album.marketingScore = static_cast<double>(score + album.songCount + albumMarketingBonus);
  });
  RecordList<Song>& songs = state.saveAllSongList;
  for (size_t i = 0; i < songs.size(); ++i) {
    if (songs[i].albumId != albumId) continue;
    songs.update(i, [&](Song& song) { song.marketingScore = static_cast<double>(score); });
  }
}

}  // namespace

SelectedPlan selectMarketingPlan(Random& random, size_t tier) {
  const MarketingPlan& plan = marketingPlans[tier];
  return {plan.cost, random.integer(plan.leastScore, plan.greatestScore)};
}

Outcome applyMarketingPlan(Game& game, const MarketingTarget& target, const SelectedPlan& plan) {
  GameState& state = game.state;
  const bool isAlbum = target.kind == MarketingTarget::Kind::album;
  const auto position = isAlbum ? albumPosition(state, target.id) : songPosition(state, target.id);
  if (!position) return {};
  if (!hasCash(state, plan.cost)) {
    return noCash<"💵 Not Enough 💵">("\nYou don't have the funds for this marketing plan.");
  }
  if (plan.score > 0) {
    if (isAlbum) {
      marketAlbum(state, *position, plan.score);
    } else {
      state.saveAllSongList.update(*position,
                                   [&](Song& song) { song.marketingScore = static_cast<double>(plan.score); });
    }
  }
  pay(game, plan.cost);
  game.save(&GameState::saveAllAlbumList, &GameState::saveAllSongList);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
