#include "play/filmed_careers.h"

#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeks = 30;
constexpr double enoughCash = 3'000;

/// A song when there is one in the air, out as soon as it is made; no work, no practice.
void playCareless(Player& player) {
  beginCareer(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week % 5 == 1) makeSong(player, {});
    releaseSingles(player, {});
    player.endTheWeek(week % 3 == 0);
  }
}

/// A job, practice, a song every third week, boosted and announced, and whatever chance offers.
void playCareful(Player& player) {
  beginCareer(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    lookForWork(player, enoughCash);
    const double cash = player.state().totalCashAvailable;
    if (week % 3 == 1) makeSong(player, {.budget = cash / 5});
    if (week % 3 == 2) releaseSingles(player, {.boosts = 3, .marketing = cash / 5, .announces = true});
    improveStudio(player, cash / 10);
    practise(player, allTraits, 0);
    player.endTheWeek(true);
  }
}

void playWorker(Player& player) {
  beginCareer(player);
  for (int64_t week = 1; week <= weeks; ++week) {
    lookForWork(player, 1e9);
    player.endTheWeek();
  }
}

}  // namespace

std::span<const GoldenCareer> filmedCareers() {
  static constexpr GoldenCareer all[] = {
      {"careless", 3, "", playCareless},
      {"careful", 3, "", playCareful},
      {"worker", 3, "", playWorker},
  };
  return all;
}

}  // namespace backbeat
