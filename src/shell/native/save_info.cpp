#include "shell/native/save_info.h"

#include <algorithm>

#include "core/memory_store.h"
#include "core/money.h"
#include "core/save_file.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t nameColumns = 40;

void add(std::string& text, const std::string& name, const std::string& value) {
  text += padded(name, nameColumns) + value + "\n";
}

}  // namespace

std::string saveInfo(Store& store) {
  MemoryStore copy;
  const bool readable = store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    copy.rows[{std::string(key), chunk}] = value;
  });
  if (!readable) return "The save could not be read.\n";
  GameState state;
  const LoadReport report = SaveFile(copy).load(state);
  std::string text;
  add(text, "Artist", state.myArtistsName.empty() ? "(no name yet)" : oneLine(state.myArtistsName, nameColumns));
  add(text, "Date",
      "Week " + std::to_string(state.weekNumber) + ", " + std::to_string(state.yearNumber) + " (week " +
          std::to_string(state.weekNumberForTracking) + " of the career)");
  add(text, "Cash", currency(state.totalCashAvailable));
  add(text, "Monthly listeners", withCommas(state.totalFans));
  const auto released = std::count_if(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                                      [](const Song& song) { return song.isReleased; });
  add(text, "Songs",
      withCommas(static_cast<int64_t>(state.saveAllSongList.size())) + ", " + withCommas(released) + " released");
  for (const auto& [key, list] : listsOf(state)) {
    const auto rows = static_cast<int64_t>(list.size());
    if (rows > 0) add(text, "  " + std::string(key), counted(rows, "row"));
  }
  for (const std::string& key : report.damaged) add(text, "  " + key, "DAMAGED: cannot be read");
  if (report.lost > 0) add(text, "MISSING", counted(report.lost, "row"));
  return text;
}

}  // namespace backbeat
