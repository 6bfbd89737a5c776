#include "shell/screens/restore_view_controller.h"

#include <algorithm>

#include "core/keep_aside.h"
#include "core/view_words.h"
#include "shell/navigator.h"

namespace backbeat {

namespace {

constexpr std::string_view askVerb = "ask";
constexpr std::string_view restoreVerb = "restore";
constexpr std::string_view askToDeleteVerb = "askToDelete";
constexpr std::string_view deleteVerb = "delete";

std::string with(std::string_view verb, const std::string& name) { return std::string(verb) + ":" + name; }

std::string pictureOf(SnapshotKind kind) {
  switch (kind) {
    case SnapshotKind::newYear: return "calendar";
    case SnapshotKind::takeover: return "family";
    case SnapshotKind::import: return "box";
    case SnapshotKind::restart:
    case SnapshotKind::restore: break;
  }
  return "restart";
}

}  // namespace

Outcome RestoreViewController::act(const Action& action) {
  const std::vector<Snapshot> kept = game_.saveFile.snapshots();
  const auto chosen =
      std::find_if(kept.begin(), kept.end(), [&](const Snapshot& each) { return each.name == action.argument(); });
  if (chosen == kept.end()) return {};
  if (action.verb() == askVerb) return askAbout(*chosen);
  if (action.verb() == askToDeleteVerb) return askToDelete(*chosen);
  if (action.verb() == deleteVerb) return deleteCopy(*chosen);
  if (action.verb() == restoreVerb) return restore(chosen->name);
  if (action.verb() == giveUpVerb && !wanted_.empty()) {
    game_.saveFile.dropSnapshot(chosen->name);
    return restore(wanted_);
  }
  return {};
}

Outcome RestoreViewController::askAbout(const Snapshot& snapshot) {
  Outcome question = ask<"Restore?">(
      "\nYou go back to " + snapshot.told() + "." + keptAsideText(game_, SnapshotKind::restore, snapshot.name), "Close",
      {"Restore", {with(restoreVerb, snapshot.name), ""}, AlertButton::Style::destructive});
  question.alerts.front().buttons.push_back({"Delete copy", {with(askToDeleteVerb, snapshot.name), ""}});
  return question;
}

Outcome RestoreViewController::askToDelete(const Snapshot& snapshot) {
  return ask<"Delete Copy?">("\nThe copy " + snapshot.told() + " will be gone for good. Today's career stays.", "Close",
                             {"Delete", {with(deleteVerb, snapshot.name), ""}, AlertButton::Style::destructive});
}

Outcome RestoreViewController::deleteCopy(const Snapshot& snapshot) {
  game_.saveFile.dropSnapshot(snapshot.name);
  return {};
}

Outcome RestoreViewController::restore(std::string_view name) {
  wanted_ = name;
  if (auto problem = keepAside(game_, SnapshotKind::restore, name)) return std::move(*problem);
  return goTo(std::string(restoreSegue), wanted_);
}

View RestoreViewController::view() const {
  View view{.title = "Restore"};
  Rows rows;
  int64_t bytes = 0;
  for (const Snapshot& snapshot : game_.saveFile.snapshots()) {
    bytes += snapshot.bytes;
    rows.items.push_back({.picture = icon(pictureOf(snapshot.kind)),
                          .title = snapshot.title,
                          .subtitle = snapshot.about + "\n" + snapshot.kept(),
                          .id = with(askVerb, snapshot.name)});
  }
  if (rows.items.empty()) {
    view.add(
        EmptyHint{.icon = "hourglass",
                  .text = "At each New Year the game keeps a copy of your career. The first one is still to come."});
    return view;
  }
  view.add(std::move(rows));
  view.add(
      caption("These copies take " + roomOf(bytes) + " of " + std::to_string(snapshotBudget / 1'000'000) + " MB."));
  view.add(caption(
      "Five each are kept of New Years, and of what was there before a restart, a takeover, an import and a way "
      "back; and of what you went back from, the furthest week of each career."));
  return view;
}

}  // namespace backbeat
