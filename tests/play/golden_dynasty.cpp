#include "life/children.h"
#include "play/golden_careers.h"
#include "shell/simulate/family_habits.h"
#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeksWithTheFamily = 26;
constexpr int64_t mostWeeksOfALife = 1'600;
constexpr int64_t weeksOfTheLast = 60;
constexpr int64_t weeksBetweenLessons = 6;
constexpr double enoughCash = 30'000;

void abandonOne(Player& player) {
  player.tab(lifeTab);
  player.press("goToChildList");
  player.press("child:1");
  player.press("abandonChild");
  player.answer(1);
  player.settle();
}

/// Looks for somebody, founds a family and raises the child until it is of age; true once it has taken over.
bool liveALife(Player& player) {
  for (int64_t week = 1; week <= mostWeeksOfALife; ++week) {
    if (retire(player, ageOfMajority)) return true;
    const bool hasChild = !player.state().saveAllChildList.empty();
    if (!hasChild) lookForLove(player, {});
    if (!hasChild || week % weeksBetweenLessons == 0) lookAfterPartner(player, {});
    if (week % weeksBetweenLessons == 1) raiseChildren(player);
    lookForWork(player, enoughCash);
    player.endTheWeek();
  }
  return false;
}

}  // namespace

void playGoldenDynasty(Player& player) {
  for (int64_t week = 1; week <= weeksWithTheFamily; ++week) {
    raiseChildren(player);
    if (week == weeksWithTheFamily) abandonOne(player);
    player.endTheWeek(week % 2 == 0);
  }
  if (!retire(player, ageOfMajority) || !liveALife(player)) return;
  for (int64_t week = 1; week <= weeksOfTheLast; ++week) {
    lookForWork(player, enoughCash);
    if (week % 4 == 1) makeSong(player, {.budget = 2'000});
    if (week % 4 == 3) releaseSingles(player, {.announces = true});
    practise(player, allTraits, 20);
    player.endTheWeek(true);
  }
}

}  // namespace backbeat
