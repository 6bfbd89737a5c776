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
  View view{.title = "Who are you?", .subtitle = "Week 1, 2023", .picture = person(name_)};
  view.add(
      Text{.text = "Write songs, release them and live from week to week, from an empty room to the top of the chart.",
           .style = Text::Style::lead});
  view.add(TextField{.id = "name", .label = "Artist name", .value = name_, .placeholder = "Enter a name"});
  view.mainAction = Button{.id = "saveButton", .label = "Start the career", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
