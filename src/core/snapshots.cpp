#include "core/snapshots.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/money.h"
#include "core/save_file.h"

namespace backbeat {

namespace {

struct KindOfSnapshot {
  SnapshotKind kind;
  std::string_view word;
  std::string_view title;
};

constexpr std::array<KindOfSnapshot, 5> kinds = {{
    {SnapshotKind::newYear, "newYear", "New Year "},
    {SnapshotKind::restart, "restart", "Before the restart"},
    {SnapshotKind::takeover, "takeover", "Before the takeover"},
    {SnapshotKind::import, "import", "Before the import"},
    {SnapshotKind::restore, "restore", "Before going back"},
}};

constexpr size_t keptOfEachKind = 5;

const KindOfSnapshot& tableRow(SnapshotKind kind) {
  return *std::find_if(kinds.begin(), kinds.end(), [&](const KindOfSnapshot& row) { return row.kind == kind; });
}

// A name is a number of six digits, the kind's word, the title, and the rest. Behind the word stand, since older
// versions had neither, the career's fingerprint and when the copy was taken: "000012|restart:0123456789abcdef:176...".
constexpr size_t numberDigits = 6;
constexpr char separator = '|';
constexpr char detailSeparator = ':';

// What stands in front of a copy's date; an artist's name may hold it as well, so the last one counts.
constexpr std::string_view beforeDate = " · Week ";

std::string_view nextPart(std::string_view& text, char end) {
  const size_t length = std::min(text.find(end), text.size());
  const std::string_view part = text.substr(0, length);
  text.remove_prefix(std::min(length + 1, text.size()));
  return part;
}

std::optional<int64_t> numberAtHead(std::string_view text) {
  int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return {};
  return number;
}

std::string digits(uint64_t number, int base, size_t width) {
  std::array<char, 24> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number, base);
  const std::string_view written(text.data(), static_cast<size_t>(end - text.data()));
  return std::string(width - std::min(written.size(), width), '0') + std::string(written);
}

std::string nextNumber(const std::vector<Snapshot>& newestFirst) {
  const auto last = newestFirst.empty() ? 0 : numberAtHead(newestFirst.front().name.substr(0, numberDigits));
  return digits(static_cast<uint64_t>(last.value_or(0)) + 1, 10, numberDigits);
}

std::string artistOf(const GameState& state) { return state.myArtistsName.empty() ? "No name" : state.myArtistsName; }

int64_t weekOf(int64_t year, int64_t week) { return year * 52 + week; }

std::string aboutOf(const GameState& state) {
  return artistOf(state) + std::string(beforeDate) + std::to_string(state.weekNumber) + ", " +
         std::to_string(state.yearNumber) + " · " + currency(state.totalCashAvailable);
}

/// Reads artist and date back from what `aboutOf` wrote.
void readAbout(Snapshot& snapshot) {
  const std::string_view about = snapshot.about;
  const size_t place = about.rfind(beforeDate);
  snapshot.artist = about.substr(0, place);
  if (place == about.npos) return;
  std::string_view date = about.substr(place + beforeDate.size());
  const auto week = numberAtHead(nextPart(date, ','));
  const auto year = numberAtHead(date.substr(std::min<size_t>(1, date.size())));
  if (week && year) snapshot.week = weekOf(*year, *week);
}

/// True when no other copy, and not the career that plays on, has come as far: of equals the newest counts.
bool holdsFurthestWeek(const Snapshot& snapshot, const std::vector<Snapshot>& newestFirst, const GameState* state) {
  const bool beyond =
      state && artistOf(*state) == snapshot.artist && weekOf(state->yearNumber, state->weekNumber) >= snapshot.week;
  return !beyond && std::none_of(newestFirst.begin(), newestFirst.end(), [&](const Snapshot& other) {
    const bool later = other.week > snapshot.week || (other.week == snapshot.week && other.name > snapshot.name);
    return other.artist == snapshot.artist && later;
  });
}

const Snapshot* leastMissed(const std::vector<Snapshot>& newestFirst, const GameState* state,
                            const std::vector<std::string>& excepted) {
  const auto isFree = [&](const Snapshot& each) {
    return std::find(excepted.begin(), excepted.end(), each.name) == excepted.end();
  };
  const Snapshot* oldest = nullptr;
  for (size_t i = newestFirst.size(); i-- > 0;) {
    const Snapshot& each = newestFirst[i];
    if (!isFree(each)) continue;
    if (!holdsFurthestWeek(each, newestFirst, state)) return &each;
    if (!oldest) oldest = &each;
  }
  return oldest;
}

/// What the new copy pushes out of its kind, the oldest first.
void pushOut(SnapshotPlan& plan, SnapshotKind kind, const std::vector<Snapshot>& newestFirst, const GameState& state,
             std::string_view spared) {
  const auto ofKind = [&](const Snapshot& each) { return each.kind == kind && each.name != plan.twin; };
  auto left = static_cast<size_t>(std::count_if(newestFirst.begin(), newestFirst.end(), ofKind)) + 1;
  for (size_t i = newestFirst.size(); i-- > 0 && left > keptOfEachKind;) {
    const Snapshot& each = newestFirst[i];
    const bool furthest = kind == SnapshotKind::restore && holdsFurthestWeek(each, newestFirst, &state);
    if (!ofKind(each) || each.name == spared || furthest) continue;
    plan.goes.push_back(each);
    --left;
  }
}

void keepToBudget(SnapshotPlan& plan, const std::vector<Snapshot>& newestFirst, const GameState& state,
                  std::string_view spared) {
  int64_t bytes = 0;
  for (const Snapshot& each : newestFirst) bytes += each.bytes;
  std::vector<std::string> excepted = {std::string(spared), plan.twin};
  for (const Snapshot& each : plan.goes) {
    bytes -= each.bytes;
    excepted.push_back(each.name);
  }
  while (bytes >= snapshotBudget) {
    const Snapshot* one = leastMissed(newestFirst, &state, excepted);
    if (!one) return;
    plan.beyondBudget = true;
    plan.goes.push_back(*one);
    excepted.push_back(one->name);
    bytes -= one->bytes;
  }
}

std::string contentOf(const GameState& state) { return digits(careerHash(state), 16, 16); }

SnapshotPlan planFor(const std::string& content, const std::vector<Snapshot>& kept, SnapshotKind kind,
                     const GameState& state, std::string_view spared) {
  // A career that was never begun is no loss.
  static const std::string nothing = contentOf(GameState());
  SnapshotPlan plan;
  plan.alreadyKept = content == nothing;
  for (const Snapshot& each : kept) {
    if (each.content != content) continue;
    // The New Years go by themselves, one a year; a career that is left must not go with them.
    const bool passes = each.kind == SnapshotKind::newYear && kind != SnapshotKind::newYear && each.name != spared;
    if (passes) plan.twin = each.name;
    plan.alreadyKept = plan.alreadyKept || !passes;
  }
  if (plan.alreadyKept) return plan;
  pushOut(plan, kind, kept, state, spared);
  keepToBudget(plan, kept, state, spared);
  return plan;
}

/// "21 Nov 2026", by the clock of Greenwich. Years are counted from March on, so that a leap day ends one.
std::string dayOf(Date date) {
  constexpr std::array<const char*, 12> months = {"Mar", "Apr", "May", "Jun", "Jul", "Aug",
                                                  "Sep", "Oct", "Nov", "Dec", "Jan", "Feb"};
  constexpr int64_t daysTo1970 = 719'468;  // from 1 March of the year 0
  constexpr int64_t daysIn400Years = 146'097;
  const int64_t days = std::max<int64_t>(static_cast<int64_t>(date.seconds) / 86'400 + daysTo1970, 0);
  const int64_t day = days % daysIn400Years;
  const int64_t year = (day - day / 1'460 + day / 36'524 - day / 146'096) / 365;
  const int64_t dayOfYear = day - (365 * year + year / 4 - year / 100);
  const int64_t month = (5 * dayOfYear + 2) / 153;
  const int64_t since = days / daysIn400Years * 400 + year + (month >= 10 ? 1 : 0);
  return std::to_string(dayOfYear - (153 * month + 2) / 5 + 1) + " " + months[static_cast<size_t>(month)] + " " +
         std::to_string(since);
}

}  // namespace

std::string Snapshot::told() const { return "\"" + title + "\" (" + about + ")"; }

std::string roomOf(int64_t bytes) { return withDecimals(std::max(static_cast<double>(bytes) / 1e6, 0.1), 1) + " MB"; }

std::string Snapshot::kept() const {
  std::string text = taken ? "Kept " + dayOf(*taken) : "Kept by an older version";
  if (bytes > 0) text += ", " + roomOf(bytes);
  return text;
}

std::string SnapshotPlan::told() const {
  if (goes.empty()) return {};
  std::string text = beyondBudget ? "The kept copies take all the room there is for them. For this one goes "
                                  : "There is room for five such copies. For this one goes ";
  for (size_t i = 0; i < goes.size(); ++i) text += (i > 0 ? " and " : "") + goes[i].told();
  return text + ".";
}

std::optional<Snapshot> readSnapshotName(std::string_view name) {
  std::string_view left = name;
  const std::string_view number = nextPart(left, separator);
  const bool numbered = number.size() == numberDigits && std::all_of(number.begin(), number.end(), [](char digit) {
                          return digit >= '0' && digit <= '9';
                        });
  std::string_view details = nextPart(left, separator);
  const std::string_view word = nextPart(details, detailSeparator);
  const auto row =
      std::find_if(kinds.begin(), kinds.end(), [&](const KindOfSnapshot& each) { return each.word == word; });
  if (!numbered || row == kinds.end()) return {};
  Snapshot snapshot{.name = std::string(name), .kind = row->kind};
  snapshot.content = nextPart(details, detailSeparator);
  if (const auto seconds = numberAtHead(details)) snapshot.taken = Date{static_cast<double>(*seconds)};
  snapshot.title = nextPart(left, separator);
  snapshot.about = left;
  readAbout(snapshot);
  return snapshot;
}

std::vector<Snapshot> snapshotsOf(Store& store) {
  std::vector<Snapshot> kept;
  for (const KeptCopy& copy : store.snapshots()) {
    auto snapshot = readSnapshotName(copy.name);
    if (!snapshot) continue;
    snapshot->bytes = copy.bytes;
    kept.push_back(std::move(*snapshot));
  }
  std::reverse(kept.begin(), kept.end());
  return kept;
}

SnapshotPlan planSnapshot(Store& store, SnapshotKind kind, const GameState& state, std::string_view spared) {
  return planFor(contentOf(state), snapshotsOf(store), kind, state, spared);
}

bool keepSnapshot(Store& store, SnapshotKind kind, const GameState& state, Date now, std::string_view spared) {
  const std::string content = contentOf(state);
  const std::vector<Snapshot> kept = snapshotsOf(store);
  const SnapshotPlan plan = planFor(content, kept, kind, state, spared);
  if (plan.alreadyKept) return true;
  if (kind == SnapshotKind::newYear && plan.beyondBudget) return false;
  const KindOfSnapshot& row = tableRow(kind);
  std::string name = nextNumber(kept) + separator;
  name += std::string(row.word) + detailSeparator + content + detailSeparator;
  name += std::to_string(static_cast<int64_t>(now.seconds)) + separator + std::string(row.title);
  if (kind == SnapshotKind::newYear) name += std::to_string(state.yearNumber);
  name += separator + aboutOf(state);
  if (!store.keepSnapshot(name)) return false;
  for (const Snapshot& older : plan.goes) store.dropSnapshot(older.name);
  if (!plan.twin.empty()) store.dropSnapshot(plan.twin);
  return true;
}

std::optional<Snapshot> dispensableSnapshot(Store& store, std::string_view spared) {
  const std::vector<Snapshot> kept = snapshotsOf(store);
  const Snapshot* one = leastMissed(kept, nullptr, {std::string(spared)});
  return one ? std::optional(*one) : std::nullopt;
}

}  // namespace backbeat
