#include "shell/screens/restore_view_controller.h"

#include <algorithm>

#include "core/view_words.h"
#include "shell/navigator.h"

namespace backbeat {

namespace {

constexpr std::string_view askVerb = "ask";
constexpr std::string_view restoreVerb = "restore";

}  // namespace

Outcome RestoreViewController::act(const Action& action) {
  if (!isKept(action.argument())) return {};
  if (action.verb() == askVerb) return askToRestore(action.argument());
  if (action.verb() == restoreVerb) return restore(action.argument());
  return {};
}

bool RestoreViewController::isKept(std::string_view name) const {
  const std::vector<Snapshot> kept = game_.saveFile.snapshots();
  return std::any_of(kept.begin(), kept.end(), [&](const Snapshot& snapshot) { return snapshot.name == name; });
}

Outcome RestoreViewController::askToRestore(std::string_view name) {
  const Snapshot snapshot = *readSnapshotName(name);
  return ask<"Restore?">(
      "\nYou go back to \"" + snapshot.title + "\": " + snapshot.about +
          ".\n\nToday's career is kept aside as \"Before going back\".",
      "Close", {"Restore", {std::string(restoreVerb) + ":" + std::string(name), ""}, AlertButton::Style::destructive});
}

Outcome RestoreViewController::restore(std::string_view name) {
  if (!game_.saveFile.keepSnapshot(SnapshotKind::restore, state(), name)) {
    return refuse<"Nothing Changed">("\nToday's career could not be kept aside, so nothing was restored.");
  }
  return goTo(std::string(restoreSegue), std::string(name));
}

View RestoreViewController::view() const {
  View view{.title = "Restore"};
  Rows rows;
  for (const Snapshot& snapshot : game_.saveFile.snapshots()) {
    rows.items.push_back({.picture = icon(snapshot.kind == SnapshotKind::newYear ? "calendar" : "restart"),
                          .title = snapshot.title,
                          .subtitle = snapshot.about,
                          .id = std::string(askVerb) + ":" + snapshot.name});
  }
  if (rows.items.empty()) {
    view.add(
        EmptyHint{.icon = "hourglass",
                  .text = "At each New Year the game keeps a copy of your career. The first one is still to come."});
    return view;
  }
  view.add(std::move(rows));
  view.add(
      caption("The last three New Years are kept, and what was there before a restart, an import and a way back."));
  return view;
}

}  // namespace backbeat
