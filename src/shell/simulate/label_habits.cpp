#include "shell/simulate/label_habits.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "career/contract_end.h"
#include "career/label_contract.h"
#include "career/studio.h"
#include "core/view_find.h"
#include "label/departments.h"
#include "label/launch.h"
#include "label/offer.h"
#include "label/office.h"
#include "label/roster.h"
#include "label/scouting.h"
#include "shell/simulate/habit_words.h"
#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 5> headTraits = {"businessTrait4", "businessTrait5", "businessTrait2",
                                                        "businessTrait3", "businessTrait1"};
constexpr std::array<const char*, 6> worthwhilePerks = {"perk:0", "perk:1", "perk:2", "perk:3", "perk:5", "perk:6"};
constexpr int64_t leastScouts = 3;
constexpr int64_t muchBetter = 20;  // points of rating
constexpr int64_t sureEnough = 60;  // per cent
constexpr int64_t leastShare = 65;  // per cent that the label keeps
constexpr int64_t weeksBetweenVisits = 2;

void openLabel(Player& player) {
  player.tab(musicTab);
  player.press("labelButton");
}

void openArtist(Player& player, int64_t artistId) {
  openLabel(player);
  player.press("goToSignedArtists");
  player.press("artist:" + std::to_string(artistId));
}

void review(Player& player) {
  const DueArtists waiting = dueArtists(player.state(), albumWaits);
  if (!waiting.first || !hasEnergy(player, 5)) return;
  openArtist(player, waiting.first->artistId);
  player.press("reviewButton");
  player.settle();
}

double earnedBy(const GameState& state, int64_t artistId) {
  double sum = 0;
  for (const auto& week : state.saveAllSignedArtistWeeklySongListens) {
    if (week.artistId == artistId) sum += week.totalStreamRevenue;
  }
  for (const auto& week : state.saveAllSignedArtistWeeklyAlbumSales) {
    if (week.artistId == artistId) sum += week.albumRevenue;
  }
  return sum;
}

/// Who has brought back what they were paid stays.
void renewOrDrop(Player& player) {
  const GameState& state = player.state();
  const DueArtists due = dueArtists(state, contractIsUp);
  if (!due.first) return;
  const SignedArtist artist = *due.first;
  const bool paid = earnedBy(state, artist.artistId) > artist.totalLifetimeCost;
  const bool canPay = state.totalCashAvailable >= static_cast<double>(artist.signingBonus);
  if (paid && !canPay) return;
  openArtist(player, artist.artistId);
  player.press(paid ? "renewButton" : "dropButton");
  player.answer(1);
  player.settle();
}

int64_t wantedStaff(const GameState& state, size_t code) {
  const int64_t busy = (activeArtists(state) + artistsForEach - 1) / artistsForEach;
  return std::max(busy, code == department::artistsAndRepertoire ? leastScouts : int64_t{1});
}

/// The weakest of a department; 0 when nobody works there.
struct Weakest {
  int64_t employeeId = 0;
  int64_t rating = 0;
};

Weakest weakestOf(const GameState& state, size_t code) {
  Weakest weakest;
  for (const Employee& employee : state.saveAllEmployeeList) {
    if (employee.employeeDepartmentCode != static_cast<int64_t>(code)) continue;
    if (weakest.employeeId != 0 && employee.employeeRating >= weakest.rating) continue;
    weakest = {employee.employeeId, employee.employeeRating};
  }
  return weakest;
}

void fire(Player& player, size_t code, int64_t employeeId) {
  openLabel(player);
  player.press("department:" + std::to_string(code));
  player.press("fire:" + std::to_string(employeeId));
  player.answer(1);
  player.settle();
}

/// Offers the candidate a job when the department is too small, or in the place of somebody much worse; whether it did.
bool consider(Player& player, size_t number, size_t code, int64_t rating) {
  const DepartmentStanding standing = departmentRatings(player.state()).departments[code];
  const Weakest weakest = weakestOf(player.state(), code);
  const bool isNeeded = standing.staff < wantedStaff(player.state(), code);
  if (!isNeeded && rating < weakest.rating + muchBetter) return false;
  player.press("offerJob:" + std::to_string(number));
  player.answer(1);
  player.settle();
  if (!isNeeded) fire(player, code, weakest.employeeId);
  return true;
}

/// Takes one of those who apply.
void hire(Player& player, int64_t worstStaff) {
  openLabel(player);
  player.press("goToLabelHireStaff");
  const std::vector<Card> candidates = blocksOf<Card>(player.view());
  for (size_t i = 0; i < candidates.size(); ++i) {
    const int64_t rating = numberIn(candidates[i].value);
    if (rating < worstStaff) continue;
    const auto department = std::find_if(departments.begin(), departments.end(),
                                         [&](const Department& each) { return each.name == candidates[i].title; });
    if (consider(player, i, static_cast<size_t>(department - departments.begin()), rating)) return;
  }
}

/// Another booth, and the next office when staff or booths have filled this one.
void makeRoom(Player& player) {
  const GameState& state = player.state();
  const bool staffFull = static_cast<int64_t>(state.saveAllEmployeeList.size()) >= state.officeCapacity;
  const bool boothsFull = boothCount(state) >= state.boothMax;
  const bool artistsFull = activeArtists(state) >= state.studioCapacity;
  if (!staffFull && !artistsFull) return;
  openLabel(player);
  player.press("goToLabelCapacity");
  if (staffFull || boothsFull) {
    for (size_t i = 0; i + 1 < offices.size(); ++i) {
      if (offices[i].typeOfOffice != state.typeOfOffice) continue;
      player.press("office:" + std::to_string(i + 1));
      break;
    }
  }
  if (artistsFull) player.press("buyBooth:diamond");
  player.settle();
}

/// Lowers the label's share until the artist is likely to sign, and asks.
void makeOffer(Player& player) {
  const auto chance = [&] { return numberIn(totalLabelled(player.view(), "One offer a visit").value); };
  for (int64_t share = SigningTerms{}.revenueShare; share > leastShare && chance() < sureEnough; --share) {
    player.press("share", "-1");
  }
  if (chance() < sureEnough) return;
  player.press("offerButton");
  player.settle();
}

void scout(Player& player, const LabelHabit& habit) {
  const GameState& state = player.state();
  if (scoutingBounds(state).scouts == 0 || activeArtists(state) >= state.studioCapacity) return;
  if (!hasEnergy(player, demoCost.energy + offerCost.energy)) return;
  openLabel(player);
  player.press("goToFindNewArtists");
  const std::vector<Card> found = blocksOf<Card>(player.view());
  const auto best = std::max_element(
      found.begin(), found.end(), [](const Card& a, const Card& b) { return numberIn(a.value) < numberIn(b.value); });
  if (best == found.end() || numberIn(best->value) < habit.worstRating) return;
  player.press("demo:" + std::to_string(best - found.begin()));
  makeOffer(player);
}

void choosePerks(Player& player) {
  openLabel(player);
  player.press("goToLabelBenefits");
  for (const char* perk : worthwhilePerks) player.press(perk);
  player.settle();
}

/// Ends a contract whose quotas are met, which would run on for ever; whether none is left.
bool isFree(Player& player) {
  const GameState& state = player.state();
  if (state.underContract < 1) return true;
  const size_t running = runningContract(state);
  if (state.onTour != 0 || running == state.saveAllContractLabelList.size()) return false;
  if (!contractFulfilled(state.saveAllContractLabelList[running])) return false;
  player.tab(homeTab);
  player.press("labelContract");
  player.press("endContract");
  player.answer(1);
  player.settle();
  return state.underContract < 1;
}

}  // namespace

void foundLabel(Player& player, double cashKept) {
  const GameState& state = player.state();
  if (state.isLabelLaunched >= 1 || studioRating(state) < studioForLabel) return;
  if (state.totalCashAvailable < launchCost.dollars + cashKept || !isFree(player)) return;
  openLabel(player);
  player.press("name", "Kite House");
  player.press("slogan", "Records worth flying for");
  player.press("createLabelButton");
  player.settle();
  choosePerks(player);
}

void runLabel(Player& player, const LabelHabit& habit) {
  const GameState& state = player.state();
  if (state.isLabelLaunched < 1) return;
  if (state.totalCashAvailable < 0) return endLabel(player);
  renewOrDrop(player);
  review(player);
  if (state.totalCashAvailable >= habit.cashKept) {
    makeRoom(player);
    const bool isForStaff = state.weekNumber % weeksBetweenVisits == 0;
    if (isForStaff) hire(player, habit.worstStaff);
    if (!isForStaff) scout(player, habit);
  }
  practise(player, headTraits, std::max(state.totalEnergyAvailable - habit.energyTrained, int64_t{0}));
}

void endLabel(Player& player) {
  if (player.state().isLabelLaunched < 1) return;
  openLabel(player);
  player.press("closeLabel");
  player.answer(1);
  player.settle();
}

}  // namespace backbeat
