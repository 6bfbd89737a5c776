#include "shell/simulate/casual.h"

#include <array>
#include <string_view>

#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeksBetweenSongs = 8;
constexpr double enoughCash = 2'000;
constexpr double shareForASong = 0.2;
constexpr int64_t energyLeftAlone = 60;
constexpr std::array<std::string_view, 2> practised = {"songWriting", "vocalRange"};

}  // namespace

void Casual::playWeek(Player& player, int64_t week) {
  lookForWork(player, enoughCash);
  if (week % weeksBetweenSongs == 1) makeSong(player, {.budget = player.state().totalCashAvailable * shareForASong});
  if (week % weeksBetweenSongs == 2) releaseSingles(player, {});
  practise(player, practised, energyLeftAlone);
  player.endTheWeek();
}

}  // namespace backbeat
