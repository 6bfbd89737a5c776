#include "core/snapshots.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/money.h"

namespace backbeat {

namespace {

struct KindOfSnapshot {
  SnapshotKind kind;
  std::string_view word;
  std::string_view title;
  size_t kept;  ///< how many of them
};

constexpr std::array<KindOfSnapshot, 4> kinds = {{
    {SnapshotKind::newYear, "newYear", "New Year ", 3},
    {SnapshotKind::restart, "restart", "Before the restart", 1},
    {SnapshotKind::import, "import", "Before the import", 1},
    {SnapshotKind::restore, "restore", "Before going back", 1},
}};

const KindOfSnapshot& tableRow(SnapshotKind kind) {
  return *std::find_if(kinds.begin(), kinds.end(), [&](const KindOfSnapshot& row) { return row.kind == kind; });
}

// A name is a number of six digits, the kind's word, the title, and the rest.
constexpr size_t numberDigits = 6;
constexpr char separator = '|';

std::string_view nextPart(std::string_view& text) {
  const size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

std::string nextNumber(const std::vector<Snapshot>& newestFirst) {
  int64_t number = 1;
  if (!newestFirst.empty()) {
    const std::string& last = newestFirst.front().name;
    std::from_chars(last.data(), last.data() + numberDigits, number);
    ++number;
  }
  const std::string digits = std::to_string(number);
  return std::string(numberDigits - std::min(digits.size(), numberDigits), '0') + digits;
}

std::string aboutOf(const GameState& state) {
  const std::string artist = state.myArtistsName.empty() ? "No name" : state.myArtistsName;
  return artist + " · Week " + std::to_string(state.weekNumber) + ", " + std::to_string(state.yearNumber) + " · " +
         currency(state.totalCashAvailable);
}

}  // namespace

std::optional<Snapshot> readSnapshotName(std::string_view name) {
  std::string_view left = name;
  const std::string_view number = nextPart(left);
  const bool numbered = number.size() == numberDigits && std::all_of(number.begin(), number.end(), [](char digit) {
                          return digit >= '0' && digit <= '9';
                        });
  const std::string_view word = nextPart(left);
  const auto row =
      std::find_if(kinds.begin(), kinds.end(), [&](const KindOfSnapshot& each) { return each.word == word; });
  if (!numbered || row == kinds.end()) return {};
  const std::string_view title = nextPart(left);
  return Snapshot{std::string(name), row->kind, std::string(title), std::string(left)};
}

std::vector<Snapshot> snapshotsOf(Store& store) {
  std::vector<Snapshot> kept;
  for (const std::string& name : store.snapshots()) {
    if (auto snapshot = readSnapshotName(name)) kept.push_back(std::move(*snapshot));
  }
  std::reverse(kept.begin(), kept.end());
  return kept;
}

bool keepSnapshot(Store& store, SnapshotKind kind, const GameState& state, std::string_view spared) {
  const KindOfSnapshot& row = tableRow(kind);
  const std::vector<Snapshot> kept = snapshotsOf(store);
  std::string title(row.title);
  if (kind == SnapshotKind::newYear) title += std::to_string(state.yearNumber);
  const std::string name =
      nextNumber(kept) + separator + std::string(row.word) + separator + title + separator + aboutOf(state);
  if (!store.keepSnapshot(name)) return false;
  size_t ofThisKind = 1;
  for (const Snapshot& older : kept) {
    if (older.kind == kind && ++ofThisKind > row.kept && older.name != spared) store.dropSnapshot(older.name);
  }
  return true;
}

}  // namespace backbeat
