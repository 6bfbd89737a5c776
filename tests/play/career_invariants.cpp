#include "play/career_invariants.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <vector>

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/week_rows.h"
#include "features/featured_streams.h"
#include "label/accounts.h"
#include "label/signed_artist_output.h"
#include "music/silence.h"
#include "turn/income_statement.h"
#include "video/weekly_views.h"
#include "wealth/net_assets.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

/// Whether an index finds what looking at every row finds.
template <class T, class Find>
std::string indexFault(std::string_view key, const RecordList<T>& list, int64_t T::*number, Find find) {
  if (number == nullptr) return {};
  std::map<int64_t, std::vector<uint32_t>> plain;
  for (uint32_t i = 0; i < list.size(); ++i) plain[list[i].*number].push_back(i);
  for (const auto& [id, positions] : plain) {
    const auto found = find(id);
    if (!std::equal(found.begin(), found.end(), positions.begin(), positions.end())) {
      return "what is found by " + std::to_string(id) + " in " + std::string(key) + " is not what its rows say";
    }
  }
  return find(-987'654'321).empty() ? "" : "something is found by nothing in " + std::string(key);
}

template <class T>
std::string indexFault(std::string_view key, const RecordList<T>& list) {
  const std::string fault = indexFault(key, list, historyKeyOf<T>, [&](int64_t id) { return list.historyOf(id); });
  return fault.empty() ? indexFault(key, list, groupKeyOf<T>, [&](int64_t id) { return list.groupOf(id); }) : fault;
}

/// Whether nothing sleeps that a turn would still look at.
template <class T, class Silent>
std::string sleepFault(std::string_view what, const RecordList<T>& list, Silent silent) {
  const std::vector<uint32_t> awake = list.awake();
  for (uint32_t i = 0; i < list.size(); ++i) {
    if (!std::binary_search(awake.begin(), awake.end(), i) && !silent(list[i])) {
      return std::string(what) + " " + std::to_string(i + 1) + " sleeps and is not silent";
    }
  }
  return {};
}

/// Whether the rows of the week that just ended are all that carry it.
template <class T>
std::string weekRowsFault(std::string_view key, const RecordList<T>& list, CalendarWeek week) {
  if constexpr (requires(T row) {
                  row.weekNumber;
                  row.yearNumber;
                }) {
    if (key.find("Weekly") == std::string_view::npos) return {};
    const auto plain = std::count_if(list.begin(), list.end(), [&](const T& row) {
      return CalendarWeek{row.weekNumber, row.yearNumber} == week;
    });
    if (static_cast<size_t>(plain) != rowsOfWeek(list, week).size()) {
      return "the rows of week " + std::to_string(week.week) + " in " + std::string(key) + " do not stand together";
    }
    const auto ofYear =
        std::count_if(list.begin(), list.end(), [&](const T& row) { return row.yearNumber == week.year; });
    if (static_cast<size_t>(ofYear) != rowsOfYear(list, week.year).size()) {
      return "the rows of " + std::to_string(week.year) + " in " + std::string(key) + " do not stand together";
    }
  }
  return {};
}

/// Whether each of the `owned` has one entry in the ledger, `offset` away from its id, and each entry from `first` to
/// `last` one of them.
template <class T>
bool pairsUp(const GameState& state, const RecordList<T>& owned, int64_t T::*id, int64_t offset, int64_t first,
             int64_t last) {
  std::multiset<int64_t> codes;
  for (const T& one : owned) codes.insert(one.*id + offset);
  std::multiset<int64_t> entries;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense >= first && item.typeOfExpense <= last) {
      entries.insert(item.typeOfExpense);
    }
  }
  return codes == entries;
}

/// Whether the ledger holds together.
std::string ledgerFault(const GameState& state) {
  std::set<int64_t> entries;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (!std::isfinite(item.amount) || item.amount < 0) return "the ledger asks for an odd amount for " + item.title;
    if (item.typeOfExpense <= expense::transportation && !entries.insert(item.typeOfExpense).second) {
      return "the ledger holds two choices of one kind: " + item.title;
    }
  }
  const auto& items = state.saveAllWeeklyLineItems;
  if (std::count_if(items.begin(), items.end(),
                    [](const WeeklyLineItem& item) { return item.typeOfExpense == expense::basicNeeds; }) != 1) {
    return "the basic needs are not in the ledger once";
  }
  if (!pairsUp(state, state.saveAllInvestmentPropertyList, &InvestmentProperty::propertyId, 2'000,
               expense::firstProperty, expense::lastProperty)) {
    return "the homes and their taxes do not pair up";
  }
  if (!pairsUp(state, state.saveAllTransportationOwnedList, &Transportation::id, -2'000, expense::firstInsurance,
               expense::lastInsurance)) {
    return "the vehicles and their insurances do not pair up";
  }
  return {};
}

/// What is wrong with the family, or "".
std::string familyFault(const GameState& state) {
  int64_t energy = 0;
  for (const Child& child : state.saveAllChildList) {
    energy += child.weeklyEnergyCost;
    if (child.admiration < 0 || child.admiration > 100) return "the admiration of " + child.name + " is out of bounds";
    if (child.typeOfRelationship < 1 && (child.weeklyEnergyCost != 0 || child.weeklyFinancialCost != 0)) {
      return child.name + " is not in the family and costs something";
    }
  }
  return energy == state.childEnergyCost ? "" : "the children's energy is not the sum of what each takes";
}

/// Whether the parts of a startup add up: nobody has less than nothing, and all together no more than there is.
std::string shareFault(const Venture& venture) {
  const auto fault = [&](const char* what) { return venture.businessName + ": " + what; };
  if (venture.totalSharesOwned < 0 || venture.totalSharesOwned > venture.totalOutstandingShares) {
    return fault("more shares owned than there are");
  }
  if (venture.percentageOwned != 100 * venture.totalSharesOwned / venture.totalOutstandingShares) {
    return fault("the part owned is not what the shares say");
  }
  int64_t sum = venture.percentageOwned + venture.percentageRemaining;
  int64_t least = std::min(venture.percentageOwned, venture.percentageRemaining);
  for (const int64_t percent : venture.shareholderPercentage) {
    sum += percent;
    least = std::min(least, percent);
  }
  if (least < 0 || sum > 100) return fault("the parts do not add up");
  const size_t rounds = static_cast<size_t>(venture.currentFundingRound) + 1;
  if (venture.fundingRoundHistory.size() != rounds || venture.shareholderName.size() != rounds ||
      venture.shareholderPercentage.size() != rounds) {
    return fault("not every round left its lead investor");
  }
  return {};
}

std::string ventureFault(const GameState& state) {
  std::set<int64_t> companies;
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (!companies.insert(venture.businessId).second) return "two stakes in " + venture.businessName;
    if (std::string found = shareFault(venture); !found.empty()) return found;
  }
  return {};
}

/// What the startups that ended since then have paid, in dollars.
double exitsSince(const WeekBefore& before, const GameState& state) {
  double sum = 0;
  for (const Venture& venture : state.saveAllVentureInvestments) {
    const bool paid = venture.hasExited == venture_exit::acquired || venture.hasExited == venture_exit::listed;
    if (!paid || !before.running.contains(venture.businessId)) continue;
    sum += static_cast<double>(venture.lastValuation) * static_cast<double>(venture.totalSharesOwned) /
           static_cast<double>(venture.totalOutstandingShares);
  }
  return sum;
}

/// Whether the fortune is the sum of all that is owned.
std::string fortuneFault(const GameState& state) {
  double sum = state.totalCashAvailable;
  for (const InvestmentProperty& home : state.saveAllInvestmentPropertyList) {
    sum += home.pricePaid * (1 + state.realEstateIndex - home.realEstateIndex);
  }
  for (const Transportation& vehicle : state.saveAllTransportationOwnedList) {
    sum += vehicle.pricePaid * (1 - 0.025 * static_cast<double>(state.yearNumber - vehicle.yearPurchased));
  }
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (venture.hasExited != venture_exit::running) continue;
    sum += static_cast<double>(venture.lastValuation) * static_cast<double>(venture.totalSharesOwned) /
           static_cast<double>(venture.totalOutstandingShares);
  }
  const double told = netAssets(state);
  return std::abs(told - sum) <= 1e-9 * std::abs(sum) + 0.01
             ? ""
             : "the fortune is " + currency(told) + " where all that is owned comes to " + currency(sum);
}

/// Whether the cash moved by what the income statement tells. The statement sums all streams though the best song alone
/// is paid, and counts fees that were paid when they were agreed on. Merchandise is paid at the sale and once more.
std::string cashFault(const GameState& state, const WeekBefore& before) {
  const IncomeStatement told = incomeStatement(state);
  double standingIncome = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) standingIncome += item.isExpense ? 0 : item.amount;
  double bestSong = 0;
  int64_t mostStreams = -1;
  for (const WeeklySongListens& row : rowsOfWeek(state.saveAllWeeklySongListens, reportedWeek(state))) {
    if (row.songListens > mostStreams) bestSong = row.totalStreamRevenue;
    mostStreams = std::max(mostStreams, row.songListens);
  }
  const double expected = before.cash + exitsSince(before, state) + told.income() - told.streams + bestSong -
                          told.flatFees + standingIncome + state.weeklyJobIncome - told.expenses() + told.merch;
  if (!(std::abs(state.totalCashAvailable - expected) <= 1e-9 * std::abs(expected) + 0.01)) {
    return "the cash is " + currency(state.totalCashAvailable) + " where the week's records say " + currency(expected);
  }
  return {};
}

}  // namespace

WeekBefore weekBefore(const GameState& state) {
  WeekBefore before{
      .tracking = state.weekNumberForTracking, .cash = state.totalCashAvailable, .underContract = state.underContract};
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (venture.hasExited == venture_exit::running) before.running.insert(venture.businessId);
  }
  return before;
}

std::string historyFault(const GameState& state) {
  std::string found;
  forEachField<GameState>([&](const auto& field) {
    if (found.empty()) found = indexFault(field.key, state.*field.member);
  });
  return found;
}

std::string sleepFault(const GameState& state) {
  const auto isSilentNow = [&](const auto& release) { return isSilent(state, release); };
  const auto isForgottenNow = [&](const auto& release) { return isForgotten(state, release); };
  std::string found = sleepFault("song", state.saveAllSongList, isSilentNow);
  if (found.empty()) found = sleepFault("album", state.saveAllAlbumList, isSilentNow);
  if (found.empty()) found = sleepFault("video", state.saveAllMusicVideoList, isForgottenNow);
  if (found.empty()) found = sleepFault("verse", state.saveAllFeaturedOnList, isForgottenNow);
  if (found.empty()) {
    found = sleepFault("product", state.saveAllMerchReleasedList,
                       [](const Merch& product) { return product.isRetired != 0; });
  }
  if (found.empty()) found = sleepFault("song of the label", state.saveAllSignedArtistSongList, isSilentNow);
  if (found.empty()) found = sleepFault("album of the label", state.saveAllSignedArtistAlbumList, isSilentNow);
  if (!found.empty()) return found;
  return sleepFault("chart row", state.saveAllBillboardSongList,
                    [](const BillboardSong& row) { return !row.isOnCharts; });
}

std::string labelSumsFault(Game& game) {
  double streams = 0;
  double sales = 0;
  for (const auto& week : game.state.saveAllSignedArtistWeeklySongListens) streams += week.totalStreamRevenue;
  for (const auto& week : game.state.saveAllSignedArtistWeeklyAlbumSales) sales += week.albumRevenue;
  const LabelSums sums = labelSums(game);
  if (sums.streams.total != streams) return "the label's streams are not summed as its weeks say";
  return sums.sales.total == sales ? "" : "the label's sales are not summed as its weeks say";
}

std::string weekFault(const GameState& state, const WeekBefore& before) {
  if (state.weekNumber < 1 || state.weekNumber > 52) return "the week is " + std::to_string(state.weekNumber);
  if (state.weekNumberForTracking != before.tracking + 1) return "the week moved by more than one";
  if ((state.yearNumber - 2023) * 52 + state.weekNumber != state.weekNumberForTracking) {
    return "the two week counters parted";
  }
  if (state.totalEnergyAvailable < 0) return "the energy is below 0";
  if (std::string found = ledgerFault(state); !found.empty()) return found;
  if (std::string found = familyFault(state); !found.empty()) return found;
  if (std::string found = ventureFault(state); !found.empty()) return found;
  if (std::string found = fortuneFault(state); !found.empty()) return found;
  const bool advancePaidBack = before.underContract != state.underContract;  // a contract was not fulfilled in time
  const bool parted =
      std::any_of(state.saveAllMatchesList.begin(), state.saveAllMatchesList.end(),
                  [&](const Matches& match) { return match.weekEndedDating == state.weekNumberForTracking; });
  // A child that is born in the report costs from the next week on, and the statement tells of it at once.
  const bool gaveBirth =
      std::any_of(state.saveAllChildList.begin(), state.saveAllChildList.end(),
                  [&](const Child& child) { return child.birthWeekForTracking == state.weekNumberForTracking; });
  const bool isTold = !advancePaidBack && !parted && !gaveBirth;
  if (std::string found = cashFault(state, before); !found.empty() && isTold) return found;
  std::set<int64_t> ids;
  for (const Song& song : state.saveAllSongList) {
    if (!ids.insert(song.songId).second) return "two songs have the id " + std::to_string(song.songId);
  }
  const CalendarWeek ended = reportedWeek(state);
  std::string found;
  forEachField<GameState>([&](const auto& field) {
    if (found.empty()) found = weekRowsFault(field.key, state.*field.member, ended);
  });
  return found;
}

}  // namespace backbeat
