#include "music/screens/enter_name_view_controller.h"

#include "core/own_photo.h"
#include "core/random.h"
#include "music/artist_name.h"

namespace backbeat {

namespace {

constexpr const char* nameless = "startNameless";
constexpr std::string_view called = "startCalled";

}  // namespace

Outcome EnterNameViewController::act(const Action& action) {
  if (action.id == "name") name_ = action.value;
  if (action.id == "saveButton") return startButton();
  if (action.id == "anotherPortrait" && !hasOwnPhoto(state())) chooseNextPortrait(game_);
  if (action.id == nameless) return saveButton();
  if (action.verb() == called) {
    name_ = action.argument();
    return saveButton();
  }
  return {};
}

/// Whoever has no name yet is asked for one first, and may go without.
Outcome EnterNameViewController::startButton() {
  if (!name_.empty()) return saveButton();
  const std::string offered = suggested();
  Outcome question = ask<"🎤 No Name Yet 🎤">("\nNobody can ask for your songs without one. How about " + offered + "?",
                                            "Close", {"Be " + offered, {std::string(called) + ":" + offered, ""}});
  question.alerts.back().buttons.push_back({"Start without", {nameless, ""}});
  return question;
}

Outcome EnterNameViewController::saveButton() {
  nameArtist(game_, name_);
  return successAndClose();
}

/// Another one at each beginning.
std::string EnterNameViewController::suggested() const {
  return suggestedStageName(hashOf(std::to_string(game_.clock.now().seconds)));
}

View EnterNameViewController::view() const {
  View view{.title = "Who are you?", .subtitle = "Week 1, 2023", .picture = artistPicture(state(), name_)};
  view.add(
      Text{.text = "Write songs, release them and live from week to week, from an empty room to the top of the chart.",
           .style = Text::Style::lead});
  view.add(TextField{.id = "name", .label = "Artist name", .value = name_, .placeholder = "Enter a name"});
  if (!hasOwnPhoto(state())) view.add(Button{.id = "anotherPortrait", .label = "Another portrait"});
  view.mainAction = Button{.id = "saveButton", .label = "Start the career", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
