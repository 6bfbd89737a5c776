#include "shell/screens/settings_view_controller.h"

#include <array>

#include "core/new_game.h"
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
  if (action.id == "appearance") return chooseAppearance(action.value);
  for (const std::string_view segue :
       {exportCareerSegue, importCareerSegue, std::string_view("goToRestore"),
        std::string_view("goToChangeFeaturedArtistName"), std::string_view("goToChangeCameoNames"),
        std::string_view("goToData"), std::string_view("goToAbout")}) {
    if (action.id == segue) return goTo(action.id);
  }
  return {};
}

Outcome SettingsViewController::restartButton() {
  return ask<"Restart?">(
      "\nAll progress will be reset.\n\nAny permanent upgrades will be transferred to your new life.", "Close",
      {"Restart", {confirmedRestart, ""}, AlertButton::Style::destructive});
}

Outcome SettingsViewController::restart() {
  game_.saveFile.keepSnapshot(SnapshotKind::restart, state());
  restartGame(game_);
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
  View view;
  view.title = "Settings";
  view.add(Heading{"Look", {}});
  Choice look;
  look.id = "appearance";
  look.label = "Appearance";
  look.style = Choice::Style::segments;
  for (size_t i = 0; i < appearances.size(); ++i) {
    look.options.push_back({appearances[i].label, "", Tone::plain, {}});
    if (state().appearance == appearances[i].stored) look.selected = static_cast<int64_t>(i);
  }
  view.add(std::move(look));
  view.add(Heading{"Names", {}});
  Rows names;
  names.items.push_back(wayTo("goToChangeFeaturedArtistName", "guest", "Featured artists", "Rename the guests"));
  names.items.push_back(wayTo("goToChangeCameoNames", "video", "Cameos", "Rename the faces in videos"));
  view.add(std::move(names));
  view.add(Heading{"Your career", {}});
  Rows career;
  career.items.push_back(
      wayTo(std::string(exportCareerSegue), "document", "Export", "Save it as a file, to keep or to carry over"));
  career.items.push_back(wayTo(std::string(importCareerSegue), "box", "Import", "Go on with a career from a file"));
  career.items.push_back(wayTo("goToRestore", "restart", "Restore", "Go back to a New Year, or undo a restart"));
  view.add(std::move(career));
  view.add(Heading{"Backbeat", {}});
  Rows game;
  game.items.push_back(wayTo("goToData", "box", "Data", "Make a long career lighter"));
  game.items.push_back(wayTo("goToAbout", "info", "About", "What this is, and whose work is in it"));
  view.add(std::move(game));
  Button restart;
  restart.id = "restartButton";
  restart.label = "Restart";
  restart.style = Button::Style::destructive;
  view.add(std::move(restart));
  view.add(Text{"Everything is saved by itself, on this device alone.", Tone::plain, Text::Style::caption});
  return view;
}

}  // namespace backbeat
