#include "music/screens/enter_name_view_controller.h"

#include "core/calendar.h"

namespace backbeat {

Outcome EnterNameViewController::act(const Action& action) {
  if (action.id == "name") name_ = action.value;
  if (action.id == "saveButton") return saveButton();
  return {};
}

Outcome EnterNameViewController::saveButton() {
  game_.state.myArtistsName = name_;
  game_.state.promptToEnterName = 1;
  game_.save(&GameState::myArtistsName, &GameState::promptToEnterName);
  stateChanged(game_);
  return successAndClose();
}

View EnterNameViewController::view() const {
  View view;
  view.title = "Who are you?";
  view.subtitle = "Week 1, 2023";
  view.picture = person(name_);
  view.add(
      Text{"A microphone, an empty notebook and a city that has not heard of you yet. Every legend starts with a "
           "name.",
           Tone::plain, Text::Style::lead});
  TextField field;
  field.id = "name";
  field.label = "Artist name";
  field.value = name_;
  field.placeholder = "Enter a name";
  view.add(std::move(field));
  Button save;
  save.id = "saveButton";
  save.label = "Start the career";
  save.style = Button::Style::primary;
  view.mainAction = std::move(save);
  return view;
}

}  // namespace backbeat
