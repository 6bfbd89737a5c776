#include "core/keep_aside.h"

namespace backbeat {

std::string keptAsideText(const Game& game, SnapshotKind kind, std::string_view spared) {
  const SnapshotPlan plan = game.saveFile.planSnapshot(kind, game.state, spared);
  if (!game.saveFile.keeping()) return "\n\nToday's career is not being kept, so there is no way back to it.";
  const std::string goes = plan.told();
  return "\n\nToday's career is kept aside: Settings, Restore." + (goes.empty() ? "" : "\n\n" + goes);
}

std::optional<Outcome> keepAside(Game& game, SnapshotKind kind, std::string_view spared) {
  if (game.saveFile.keepSnapshot(kind, game.state, game.clock.now(), spared)) return {};
  const std::string problem = "\nToday's career could not be kept aside, perhaps for want of room on this device.";
  const auto copy = game.saveFile.dispensableSnapshot(spared);
  if (!copy) return refuse<"Nothing Changed">(problem + "\n\nNothing has changed.");
  return ask<"No Room">(problem + "\n\nGive up the copy " + copy->told() + " for it?", "Close",
                        {"Give up", {std::string(giveUpVerb) + ":" + copy->name, ""}, AlertButton::Style::destructive});
}

}  // namespace backbeat
