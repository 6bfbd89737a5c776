#include "turn/open_report.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "core/calendar.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

using AlbumBefore = MilestoneSnapshot::AlbumStanding;
using SongBefore = MilestoneSnapshot::SongStanding;

/// A number of an `Owner`. Each table below is in the order in which its numbers are kept, which is part of the save: a
/// new one joins at the end.
template <class Owner>
using Kept = std::variant<int64_t Owner::*, double Owner::*, bool Owner::*>;

constexpr Kept<WeeklyReport> ofReport[] = {&WeeklyReport::showChirpId,
                                           &WeeklyReport::totalAlbumRevenue,
                                           &WeeklyReport::streams,
                                           &WeeklyReport::tour,
                                           &WeeklyReport::festivalPayment,
                                           &WeeklyReport::label,
                                           &WeeklyReport::featured,
                                           &WeeklyReport::merch,
                                           &WeeklyReport::merchUnits,
                                           &WeeklyReport::videos,
                                           &WeeklyReport::job,
                                           &WeeklyReport::standingIncome,
                                           &WeeklyReport::standingExpenses,
                                           &WeeklyReport::family,
                                           &WeeklyReport::labelExpenses,
                                           &WeeklyReport::totalRevenue,
                                           &WeeklyReport::totalExpenses,
                                           &WeeklyReport::cashBefore,
                                           &WeeklyReport::exits};

constexpr Kept<WeeklyReport> ofAppearance[] = {&WeeklyReport::hasAppeared, &WeeklyReport::bonusPaidBack,
                                               &WeeklyReport::settlement};

constexpr Kept<MilestoneSnapshot> ofWeekBefore[] = {
    &MilestoneSnapshot::absoluteWeek,      &MilestoneSnapshot::cash,
    &MilestoneSnapshot::listeners,         &MilestoneSnapshot::mostListeners,
    &MilestoneSnapshot::allListenersKnown, &MilestoneSnapshot::followers,
    &MilestoneSnapshot::jobWeeks,          &MilestoneSnapshot::bestRank,
    &MilestoneSnapshot::bestSongTier,      &MilestoneSnapshot::bestAlbumTier,
    &MilestoneSnapshot::wasStreamed};

constexpr Kept<StreamWeeks> ofStreams[] = {&StreamWeeks::streams, &StreamWeeks::dollars, &StreamWeeks::bestStreams,
                                           &StreamWeeks::bestDollars, &StreamWeeks::count};

constexpr Kept<SongBefore> ofSong[] = {&SongBefore::songId, &SongBefore::tier, &SongBefore::peak, &SongBefore::wasFirst,
                                       &SongBefore::wasOnChart};

constexpr Kept<AlbumBefore> ofAlbum[] = {&AlbumBefore::albumId, &AlbumBefore::tier};

constexpr Kept<VentureWeek> ofVenture[] = {&VentureWeek::businessId, &VentureWeek::valuationBefore,
                                           &VentureWeek::isRevalued, &VentureWeek::exit, &VentureWeek::payout};

constexpr Kept<Turn> ofTurn[] = {&Turn::lastPlaceChartPosition, &Turn::madeFirstSong, &Turn::tookFirstJob};

constexpr Kept<Launch> ofLaunch[] = {&Launch::weeklyFanChange};

constexpr std::string_view openWeek = "open";
constexpr std::string_view closedWeek = "closed";
constexpr std::string_view hasMadeSong = "has made a song";
constexpr std::string_view hasWorked = "has worked";

using Numbers = RecordList<ReportNumbers>;

/// The numbers of all `owners`, if there are any.
template <class Owner, size_t count>
void keep(Numbers& numbers, std::string_view what, const Kept<Owner> (&table)[count], std::span<const Owner> owners) {
  if (owners.empty()) return;
  ReportNumbers kept{std::string(what), count, {}};
  kept.figures.reserve(owners.size() * count);
  for (const Owner& owner : owners) {
    for (const Kept<Owner>& member : table) {
      kept.figures.push_back(std::visit([&](auto number) { return static_cast<double>(owner.*number); }, member));
    }
  }
  numbers.append(std::move(kept));
}

template <class Owner, size_t count>
void keep(Numbers& numbers, std::string_view what, const Kept<Owner> (&table)[count], const Owner& owner) {
  keep(numbers, what, table, std::span(&owner, 1));
}

const ReportNumbers* keptOf(const Numbers& numbers, std::string_view what) {
  const size_t at = numbers.find([&](const ReportNumbers& kept) { return kept.what == what; });
  return at < numbers.size() ? &numbers[at] : nullptr;
}

/// Gives each of `owners` its numbers back. What an older version did not keep stays as it is.
template <class Owner, size_t count>
void recall(const ReportNumbers& kept, const Kept<Owner> (&table)[count], std::span<Owner> owners) {
  const auto each = static_cast<size_t>(kept.each);
  for (size_t i = 0; i < owners.size(); ++i) {
    for (size_t k = 0; k < std::min(each, count) && i * each + k < kept.figures.size(); ++k) {
      const double figure = kept.figures[i * each + k];
      std::visit(
          [&](auto number) {
            using Value = std::remove_cvref_t<decltype(owners[i].*number)>;
            if constexpr (std::is_same_v<Value, bool>) {
              owners[i].*number = figure != 0;
            } else {
              owners[i].*number = static_cast<Value>(figure);
            }
          },
          table[k]);
    }
  }
}

template <class Owner, size_t count>
void recall(const Numbers& numbers, std::string_view what, const Kept<Owner> (&table)[count], Owner& owner) {
  if (const ReportNumbers* kept = keptOf(numbers, what)) recall(*kept, table, std::span(&owner, 1));
}

template <class Owner, size_t count>
void recall(const Numbers& numbers, std::string_view what, const Kept<Owner> (&table)[count],
            std::vector<Owner>& owners) {
  const ReportNumbers* kept = keptOf(numbers, what);
  if (!kept || kept->each < 1) return;
  owners.resize(kept->figures.size() / static_cast<size_t>(kept->each));
  recall(*kept, table, std::span(owners));
}

bool isKept(const Numbers& numbers, std::string_view what) { return keptOf(numbers, what) != nullptr; }

/// Leaves the week, and what was done by then.
void beginAnew(Game& game, std::string_view how) {
  Numbers& numbers = game.state.reportNumbers;
  const bool songs = isKept(numbers, hasMadeSong) || !game.state.saveAllSongList.empty();
  const bool jobs = isKept(numbers, hasWorked) || game.turn.tookFirstJob;
  numbers.clear();
  numbers.append({std::string(how), 1, {static_cast<double>(game.state.weekNumberForTracking)}});
  if (songs) numbers.append({std::string(hasMadeSong), 0, {}});
  if (jobs) numbers.append({std::string(hasWorked), 0, {}});
}

}  // namespace

bool isReportOpen(const GameState& state) {
  const ReportNumbers* kept = keptOf(state.reportNumbers, openWeek);
  return kept && kept->figures == std::vector{static_cast<double>(state.weekNumberForTracking)};
}

void rememberReport(Game& game, const WeeklyReport& report) {
  const Turn& turn = game.turn;
  Numbers& numbers = game.state.reportNumbers;
  beginAnew(game, openWeek);
  keep(numbers, "report", ofReport, report);
  keep(numbers, "turn", ofTurn, turn);
  keep(numbers, "launch", ofLaunch, game.launch);
  keep(numbers, "week before", ofWeekBefore, turn.before);
  keep(numbers, "streams", ofStreams, turn.before.streamWeeks);
  keep(numbers, "songs", ofSong, std::span(turn.before.songs));
  keep(numbers, "albums", ofAlbum, std::span(turn.before.albums));
  keep(numbers, "companies", ofVenture, std::span(turn.ventures));
  game.save(&GameState::reportNumbers);
}

void rememberAppearance(Game& game, const WeeklyReport& report) {
  keep(game.state.reportNumbers, "appearance", ofAppearance, report);
  game.save(&GameState::reportNumbers);
}

WeeklyReport recalledReport(Game& game) {
  WeeklyReport report;
  gatherRecords(game.state, report);
  Turn& turn = game.turn;
  turn = Turn();
  turn.before.week = report.week;
  const Numbers& numbers = game.state.reportNumbers;
  recall(numbers, "report", ofReport, report);
  recall(numbers, "appearance", ofAppearance, report);
  recall(numbers, "turn", ofTurn, turn);
  recall(numbers, "launch", ofLaunch, game.launch);
  recall(numbers, "week before", ofWeekBefore, turn.before);
  recall(numbers, "streams", ofStreams, turn.before.streamWeeks);
  recall(numbers, "songs", ofSong, turn.before.songs);
  recall(numbers, "albums", ofAlbum, turn.before.albums);
  recall(numbers, "companies", ofVenture, turn.ventures);
  return report;
}

void noteFirsts(Game& game) {
  GameState& state = game.state;
  Numbers& numbers = state.reportNumbers;
  if (numbers.empty() && anyWeekReported(state)) {
    numbers.append({std::string(hasMadeSong), 0, {}});
    numbers.append({std::string(hasWorked), 0, {}});
  }
  game.turn.madeFirstSong = !isKept(numbers, hasMadeSong) && !state.saveAllSongList.empty();
  game.turn.tookFirstJob = !isKept(numbers, hasWorked) && state.weeklyJobContractRemaining > 0;
}

void forgetReport(Game& game) {
  beginAnew(game, closedWeek);
  game.save(&GameState::reportNumbers);
}

}  // namespace backbeat
