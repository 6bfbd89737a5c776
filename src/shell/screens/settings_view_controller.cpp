#include "shell/screens/settings_view_controller.h"

#include <array>

#include "career/ledger.h"
#include "core/keep_aside.h"
#include "core/new_game.h"
#include "core/view_words.h"
#include "music/artist_name.h"
#include "shell/export_reminder.h"
#include "shell/navigator.h"

namespace backbeat {

namespace {

struct Appearance {
  const char* stored;
  const char* label;
};

constexpr std::array<Appearance, 3> appearances = {{{"system", "System"}, {"dark", "Dark"}, {"light", "Light"}}};

constexpr const char* confirmedRestart = "restartConfirmed";

}  // namespace

Outcome SettingsViewController::act(const Action& action) {
  if (action.id == "restartButton") return restartButton();
  if (action.id == confirmedRestart) return restart();
  if (action.verb() == giveUpVerb) {
    game_.saveFile.dropSnapshot(action.argument());
    return restart();
  }
  if (action.id == "appearance") return chooseAppearance(action.value);
  if (action.id == "artistName") nameArtist(game_, action.value);
  for (const std::string_view segue :
       {exportCareerSegue, importCareerSegue, feedbackSegue, replaySegue, std::string_view("goToRestore"),
        std::string_view("goToChangeFeaturedArtistName"), std::string_view("goToChangeCameoNames"),
        std::string_view("goToData"), std::string_view("goToAbout")}) {
    if (action.id == segue) return goTo(action.id);
  }
  if (action.id == "rateButton") {
    game_.platform.requestReview();
    thanked_ = true;
  }
  return {};
}

Outcome SettingsViewController::restartButton() {
  return ask<"Restart?">(
      "\nAll progress will be reset.\n\nAny permanent upgrades will be transferred to your new life." +
          keptAsideText(game_, SnapshotKind::restart),
      "Close", {"Restart", {confirmedRestart, ""}, AlertButton::Style::destructive});
}

Outcome SettingsViewController::restart() {
  if (auto problem = keepAside(game_, SnapshotKind::restart)) return std::move(*problem);
  restartGame(game_);
  ensureBasicNeeds(game_);
  return goTo(std::string(startOverSegue));
}

Outcome SettingsViewController::chooseAppearance(std::string_view option) {
  const auto number = optionNumber(option, appearances.size());
  if (!number) return {};
  game_.state.appearance = appearances[*number].stored;
  game_.save(&GameState::appearance);
  return {};
}

View SettingsViewController::view() const {
  View view{.title = "Settings"};
  view.add(Heading{"Look"});
  Choice look{.id = "appearance", .label = "Appearance", .style = Choice::Style::segments};
  for (size_t i = 0; i < appearances.size(); ++i) {
    look.options.push_back({.label = appearances[i].label});
    if (state().appearance == appearances[i].stored) look.selected = static_cast<int64_t>(i);
  }
  view.add(std::move(look));
  view.add(Heading{"Names"});
  view.add(TextField{
      .id = "artistName", .label = "Artist name", .value = state().myArtistsName, .placeholder = "Enter a name"});
  view.add(Rows{{wayTo("goToChangeFeaturedArtistName", "guest", "Featured artists", "Rename the guests"),
                 wayTo("goToChangeCameoNames", "video", "Cameos", "Rename the faces in videos")}});
  view.add(Heading{"Your career"});
  const char* whyExport =
      exportIsDue(game_) ? "Another year! Worth a file of its own" : "Save it as a file, to keep or to carry over";
  view.add(Rows{{wayTo(std::string(exportCareerSegue), "document", "Export", whyExport),
                 wayTo(std::string(importCareerSegue), "box", "Import", "Go on with a career from a file"),
                 wayTo("goToRestore", "restart", "Restore", "Go back to a New Year, or undo a restart")}});
  view.add(Heading{"To the makers"});
  view.add(
      Rows{{wayTo(std::string(feedbackSegue), "envelope", "Write to us", "In your own mail; nothing goes by itself"),
            {.picture = icon("star"),
             .title = "Rate Backbeat",
             .subtitle = thanked_ ? "Thank you" : "If it is worth your evenings",
             .id = "rateButton"},
            wayTo(std::string(replaySegue), "play", "Replay file",
                  "All you pressed since the game was opened, for a fault to be found")}});
  view.add(Heading{"Backbeat"});
  view.add(Rows{{wayTo("goToData", "box", "Data", "Make a long career lighter"),
                 wayTo("goToAbout", "info", "About", "What this is, and whose work is in it")}});
  view.add(Button{.id = "restartButton", .label = "Restart", .style = Button::Style::destructive});
  view.add(caption("Everything is saved by itself, on this device alone."));
  return view;
}

}  // namespace backbeat
