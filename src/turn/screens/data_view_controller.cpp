#include "turn/screens/data_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "turn/pruning.h"

namespace backbeat {

Outcome DataViewController::act(const Action& action) {
  if (action.id == "optimizeButton") return optimizeButton();
  if (action.id == "resetStartupsButton") return resetStartupsButton();
  if (action.id == "optimize") return optimize(game_);
  if (action.id == "resetStartups") return resetStartups(game_);
  return {};
}

Outcome DataViewController::optimizeButton() const {
  const PruningCounts counts = countForPruning(state());
  const std::string message =
      "\nIf you are experiencing slowness, optimizing will remove\n\nSONG + ALBUM\ndata for:\n\nSIGNED "
      "ARTISTS\nSongs/albums released before " +
      std::to_string(counts.signedYear) + "\n" + withCommas(counts.signedSongs) + " songs to remove\n" +
      withCommas(counts.signedAlbums) + " albums to remove\n\n" + state().myArtistsName +
      "\nSongs/albums released before " + std::to_string(counts.ownYear) + "\n" + withCommas(counts.songs) +
      " songs to remove\n" + withCommas(counts.albums) + " albums to remove\n\nAre you sure you want to optimize?";
  return ask<"🚀 Optimize? 🚀">(message, "Close", {"Yes, Optimize", {"optimize", ""}, AlertButton::Style::destructive});
}

Outcome DataViewController::resetStartupsButton() const {
  return ask<"🔄 Reset Startups? 🔄">(
      "\nIntended for those who have invested and exited ALL venture investments.\n\nThis will remove "
      "previous investments from your portfolio and allow all companies to become investable again "
      "through Pitch Deck. Your biggest exit on Farbes will not be reset.\n\nAre you sure you want to "
      "reset?",
      "Close", {"Reset Startups", {"resetStartups", ""}, AlertButton::Style::destructive});
}

View DataViewController::view() const {
  View view{.title = "Data"};
  const PruningCounts counts = countForPruning(state());
  const int64_t songs = counts.songs + counts.signedSongs;
  const int64_t albums = counts.albums + counts.signedAlbums;
  const std::string found = songs + albums == 0 ? "Nothing is old enough to remove"
                                                : counted(songs, "old song") + ", " + counted(albums, "old album");
  const auto startups = static_cast<int64_t>(state().saveAllVentureInvestments.size());
  view.add(Rows{{{.picture = icon("spark"), .title = "Optimize", .subtitle = found, .id = "optimizeButton"},
                 {.picture = icon("restart"),
                  .title = "Reset Startups",
                  .subtitle = counted(startups, "investment"),
                  .id = "resetStartupsButton"}}});
  view.add(caption("Both ask before they remove anything, and neither can be undone."));
  return view;
}

}  // namespace backbeat
