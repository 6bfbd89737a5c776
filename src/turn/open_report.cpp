#include "turn/open_report.h"

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <variant>

#include "core/calendar.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

using AlbumBefore = MilestoneSnapshot::AlbumStanding;
using SongBefore = MilestoneSnapshot::SongStanding;

/// A number of an `Owner`, and the name under which it is kept. Names are part of the save; they never change.
template <class Owner>
struct Kept {
  std::string_view what;
  std::variant<int64_t Owner::*, double Owner::*, bool Owner::*> member;
};

constexpr Kept<WeeklyReport> ofReport[] = {
    {"show chirp", &WeeklyReport::showChirpId},
    {"albums", &WeeklyReport::totalAlbumRevenue},
    {"streams", &WeeklyReport::streams},
    {"tour", &WeeklyReport::tour},
    {"festival", &WeeklyReport::festivalPayment},
    {"label", &WeeklyReport::label},
    {"featured", &WeeklyReport::featured},
    {"merch", &WeeklyReport::merch},
    {"merch units", &WeeklyReport::merchUnits},
    {"videos", &WeeklyReport::videos},
    {"job", &WeeklyReport::job},
    {"standing income", &WeeklyReport::standingIncome},
    {"standing expenses", &WeeklyReport::standingExpenses},
    {"family", &WeeklyReport::family},
    {"label expenses", &WeeklyReport::labelExpenses},
    {"revenue", &WeeklyReport::totalRevenue},
    {"expenses", &WeeklyReport::totalExpenses},
    {"cash before", &WeeklyReport::cashBefore},
    {"exits", &WeeklyReport::exits},
};

constexpr Kept<WeeklyReport> ofAppearance[] = {
    {"has appeared", &WeeklyReport::hasAppeared},
    {"bonus paid back", &WeeklyReport::bonusPaidBack},
    {"settlement", &WeeklyReport::settlement},
};

constexpr Kept<MilestoneSnapshot> ofWeekBefore[] = {
    {"week before", &MilestoneSnapshot::absoluteWeek},
    {"cash of the week before", &MilestoneSnapshot::cash},
    {"listeners", &MilestoneSnapshot::listeners},
    {"most listeners", &MilestoneSnapshot::mostListeners},
    {"all listeners known", &MilestoneSnapshot::allListenersKnown},
    {"followers", &MilestoneSnapshot::followers},
    {"job weeks", &MilestoneSnapshot::jobWeeks},
    {"best rank", &MilestoneSnapshot::bestRank},
    {"best song tier", &MilestoneSnapshot::bestSongTier},
    {"best album tier", &MilestoneSnapshot::bestAlbumTier},
    {"was streamed", &MilestoneSnapshot::wasStreamed},
};

constexpr Kept<StreamWeeks> ofStreams[] = {
    {"last streams", &StreamWeeks::streams},     {"last dollars", &StreamWeeks::dollars},
    {"best streams", &StreamWeeks::bestStreams}, {"best dollars", &StreamWeeks::bestDollars},
    {"weeks of streams", &StreamWeeks::count},
};

constexpr Kept<SongBefore> ofSong[] = {
    {"song", &SongBefore::songId},
    {"song tier", &SongBefore::tier},
    {"song peak", &SongBefore::peak},
    {"song was first", &SongBefore::wasFirst},
    {"song was on chart", &SongBefore::wasOnChart},
};

constexpr Kept<AlbumBefore> ofAlbum[] = {{"album", &AlbumBefore::albumId}, {"album tier", &AlbumBefore::tier}};

constexpr Kept<VentureWeek> ofVenture[] = {
    {"company", &VentureWeek::businessId},  {"valuation before", &VentureWeek::valuationBefore},
    {"revalued", &VentureWeek::isRevalued}, {"exit", &VentureWeek::exit},
    {"payout", &VentureWeek::payout},
};

constexpr Kept<Turn> ofTurn[] = {
    {"last place", &Turn::lastPlaceChartPosition},
    {"first song", &Turn::madeFirstSong},
    {"first job", &Turn::tookFirstJob},
};

constexpr Kept<Launch> ofLaunch[] = {{"listeners gained", &Launch::weeklyFanChange}, {"wedding", &Launch::weddingWeek}};

constexpr std::string_view openWeek = "open";
constexpr std::string_view closedWeek = "closed";
constexpr std::string_view hasMadeSong = "has made a song";
constexpr std::string_view hasWorked = "has worked";

using Numbers = RecordList<ReportNumber>;

void keep(Numbers& numbers, std::string_view what, int64_t of, double amount) {
  numbers.append({std::string(what), of, amount});
}

/// Its numbers, but for those that are nothing.
template <class Owner, size_t count>
void keep(Numbers& numbers, const Kept<Owner> (&table)[count], const Owner& owner, int64_t of = 0) {
  for (const Kept<Owner>& kept : table) {
    const double amount = std::visit([&](auto member) { return static_cast<double>(owner.*member); }, kept.member);
    if (amount != 0) keep(numbers, kept.what, of, amount);
  }
}

template <class Owner, size_t count>
void recall(const ReportNumber& number, const Kept<Owner> (&table)[count], Owner& owner) {
  for (const Kept<Owner>& kept : table) {
    if (kept.what != number.what) continue;
    std::visit(
        [&](auto member) {
          using Value = std::remove_cvref_t<decltype(owner.*member)>;
          if constexpr (std::is_same_v<Value, bool>) {
            owner.*member = number.figure != 0;
          } else {
            owner.*member = static_cast<Value>(number.figure);
          }
        },
        kept.member);
  }
}

/// The same of a list: the first number of each is its id.
template <class Owner, size_t count>
void recall(const ReportNumber& number, const Kept<Owner> (&table)[count], std::vector<Owner>& owners) {
  if (number.what == table[0].what) owners.emplace_back();
  if (!owners.empty()) recall(number, table, owners.back());
}

bool isKept(const Numbers& numbers, std::string_view what) {
  return numbers.find([&](const ReportNumber& number) { return number.what == what; }) != numbers.size();
}

/// Leaves the week, and what was done by then.
void beginAnew(Game& game, std::string_view how) {
  Numbers& numbers = game.state.openReport;
  const bool songs = isKept(numbers, hasMadeSong) || !game.state.saveAllSongList.empty();
  const bool jobs = isKept(numbers, hasWorked) || game.turn.tookFirstJob;
  numbers.clear();
  keep(numbers, how, game.state.weekNumberForTracking, 0);
  if (songs) keep(numbers, hasMadeSong, 0, 1);
  if (jobs) keep(numbers, hasWorked, 0, 1);
}

/// No week of this life has ended yet.
bool isFirstWeek(const GameState& state) {
  const bool hasBegun = state.weekNumberForTracking == 1 || state.ageAtTakeover == state.yearNumber;
  return hasBegun && state.monthlyListenerData.empty();
}

}  // namespace

bool isReportOpen(const GameState& state) {
  const Numbers& numbers = state.openReport;
  return !numbers.empty() && numbers[0].what == openWeek && numbers[0].of == state.weekNumberForTracking;
}

void rememberReport(Game& game, const WeeklyReport& report) {
  const Turn& turn = game.turn;
  Numbers& numbers = game.state.openReport;
  beginAnew(game, openWeek);
  keep(numbers, ofReport, report);
  keep(numbers, ofTurn, turn);
  keep(numbers, ofLaunch, game.launch);
  keep(numbers, ofWeekBefore, turn.before);
  keep(numbers, ofStreams, turn.before.streamWeeks);
  for (const SongBefore& song : turn.before.songs) keep(numbers, ofSong, song, song.songId);
  for (const AlbumBefore& album : turn.before.albums) keep(numbers, ofAlbum, album, album.albumId);
  for (const VentureWeek& venture : turn.ventures) keep(numbers, ofVenture, venture, venture.businessId);
  game.save(&GameState::openReport);
}

void rememberAppearance(Game& game, const WeeklyReport& report) {
  keep(game.state.openReport, ofAppearance, report);
  game.save(&GameState::openReport);
}

WeeklyReport recalledReport(Game& game) {
  WeeklyReport report;
  gatherRecords(game.state, report);
  Turn& turn = game.turn;
  turn = Turn();
  turn.before.week = report.week;
  for (const ReportNumber& number : game.state.openReport) {
    recall(number, ofReport, report);
    recall(number, ofAppearance, report);
    recall(number, ofTurn, turn);
    recall(number, ofLaunch, game.launch);
    recall(number, ofWeekBefore, turn.before);
    recall(number, ofStreams, turn.before.streamWeeks);
    recall(number, ofSong, turn.before.songs);
    recall(number, ofAlbum, turn.before.albums);
    recall(number, ofVenture, turn.ventures);
  }
  return report;
}

void noteFirsts(Game& game) {
  GameState& state = game.state;
  Numbers& numbers = state.openReport;
  if (numbers.empty() && !isFirstWeek(state)) {
    keep(numbers, hasMadeSong, 0, 1);
    keep(numbers, hasWorked, 0, 1);
  }
  game.turn.madeFirstSong = !isKept(numbers, hasMadeSong) && !state.saveAllSongList.empty();
  game.turn.tookFirstJob = !isKept(numbers, hasWorked) && state.weeklyJobContractRemaining > 0;
}

void forgetReport(Game& game) {
  beginAnew(game, closedWeek);
  game.save(&GameState::openReport);
}

}  // namespace backbeat
