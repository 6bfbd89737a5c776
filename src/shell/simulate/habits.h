// What people do in a week of their career, as presses: the strategies put their weeks together from these. A habit
// that the week has no energy, no money or no occasion for presses nothing, or takes the refusal.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "shell/simulate/player.h"

namespace backbeat {

/// Gives the artist of a new career a name.
void beginCareer(Player& player);

/// Without a job and with less than `enoughCash` dollars: looks at the job board and takes what pays best for its
/// energy.
void lookForWork(Player& player, double enoughCash);

/// Signs whatever a label offers.
void signWithALabel(Player& player);

struct SongPlan {
  double budget = 0;       ///< dollars for writer, musicians and studio together
  double guestBudget = 0;  ///< dollars for the best guest that they hire
  bool forAlbum = false;   ///< goes on the album in production, if there is one
};
/// Records a song with the best choices that the plan can pay.
void makeSong(Player& player, const SongPlan& plan);

struct ReleasePlan {
  int64_t boosts = 0;      ///< at most so many of its production
  double marketing = 0;    ///< dollars for the best plan that they buy
  bool announces = false;  ///< on the feed, before it comes out
};
/// Brings out the finished singles, as far as the energy reaches.
void releaseSingles(Player& player, const ReleasePlan& plan);

struct AlbumPlan {
  int64_t songs = 3;                 ///< it comes out once it has so many
  double marketing = 0;              ///< dollars for the best plan that they buy
  std::optional<size_t> price = {};  ///< number of the price to set
};
/// Begins an album when none is in production; brings out the one that is when it is full.
void workOnAlbum(Player& player, const AlbumPlan& plan);

inline constexpr std::array<std::string_view, 5> allTraits = {"songWriting", "vocalRange", "rhythm", "charisma",
                                                              "virality"};
/// Levels up the cheapest of `traits` until no more than `energyKept` would be left.
void practise(Player& player, std::span<const std::string_view> traits, int64_t energyKept);

/// Buys the cheapest part of the studio, again and again, until `budget` dollars are spent.
void improveStudio(Player& player, double budget);

/// Chooses in each category the best life that costs at most `weekly` dollars a week, or none.
void chooseLifestyles(Player& player, double weekly);

}  // namespace backbeat
