#include <algorithm>

#include "turn/gigs/gigs.h"

namespace backbeat {

namespace {

constexpr int64_t fansForFestivals = 50'000;
constexpr int64_t recentYears = 4;

Outcome lookAtFansAndSongs(Game& game, WeeklyEvents&) {
  const GameState& state = game.state;
  if (state.totalFans < fansForFestivals) {
    return refuse<"You Weren't Selected">(
        "\nYou need to have at least 50,000 monthly listeners to make it into the general lineup.");
  }
  const bool recentSong = std::any_of(state.saveAllSongList.begin(), state.saveAllSongList.end(), [&](const Song& s) {
    return s.isReleased && s.releaseYear >= state.yearNumber - recentYears;
  });
  if (!recentSong) {
    return refuse<"No Recent Songs">("\nWrite and release more recent songs before you can get invited to festivals.");
  }
  return {};
}

}  // namespace

const Gig festivalInvite = {
    .name = "Festival Invite",
    .icon = "ticket",
    .headline = "A festival calls",
    .promise = "They want listeners by the ten thousand and recent songs.",
    .price = {.energy = 50},
    .refusal = "\nYou do not have enough energy to think about performing at a festival.",
    .guard = lookAtFansAndSongs,
    .effect = [](Game&, const WeeklyEvents&) { return goTo("goToFestivalInvite"); },
};

}  // namespace backbeat
