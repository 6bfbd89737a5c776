#include "shell/native/copies_command.h"

#include "core/save_file.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t aboutColumns = 60;

}  // namespace

std::string listOfCopies(Store& store) {
  const std::vector<Snapshot> kept = snapshotsOf(store);
  if (kept.empty()) return "There are no copies yet. The first one is kept at the next New Year.\n";
  std::string text;
  int64_t bytes = 0;
  for (size_t i = 0; i < kept.size(); ++i) {
    bytes += kept[i].bytes;
    text += padded(std::to_string(i + 1), 4) + padded(kept[i].title, 20) +
            padded(oneLine(kept[i].about, aboutColumns), aboutColumns + 2) + kept[i].kept() + "\n";
  }
  return text + "They take " + roomOf(bytes) + " of " + std::to_string(snapshotBudget / 1'000'000) + " MB.\n";
}

std::optional<Snapshot> numberedCopy(Store& store, int64_t number) {
  const std::vector<Snapshot> kept = snapshotsOf(store);
  if (number < 1 || static_cast<size_t>(number) > kept.size()) return {};
  return kept[static_cast<size_t>(number) - 1];
}

CopyTask goBackTo(CareerStore& store, const Snapshot& copy, Date now, bool force) {
  GameState today;
  SaveFile saveFile(store);
  if (!saveFile.load(today).readable) return {false, "The save cannot be read to its end. Nothing has changed."};
  const std::string goes = saveFile.planSnapshot(SnapshotKind::restore, today, copy.name).told();
  if (!goes.empty() && !force) return {false, goes + " --force goes on. Nothing has changed."};
  if (!saveFile.keepSnapshot(SnapshotKind::restore, today, now, copy.name)) {
    return {false, "The career so far could not be kept aside. Nothing has changed."};
  }
  if (!store.restoreSnapshot(copy.name)) return {false, "That copy could not be restored. Nothing has changed."};
  return {true, "The career is back at " + copy.told() + ". What was there is kept."};
}

CopyTask deleteCopy(Store& store, const Snapshot& copy, bool force) {
  if (!force) return {false, "This would delete " + copy.told() + " for good; --force does it."};
  store.dropSnapshot(copy.name);
  return {true, copy.told() + " is deleted."};
}

}  // namespace backbeat
