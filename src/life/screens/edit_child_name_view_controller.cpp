#include "life/screens/edit_child_name_view_controller.h"

#include "life/children.h"

namespace backbeat {

Outcome EditChildNameViewController::open() {
  const auto position = childPosition(state(), selectedChildIndex_);
  if (!position) return {};
  const std::string& name = state().saveAllChildList[*position].name;
  if (name != newbornName) typed_ = name;
  return {};
}

Outcome EditChildNameViewController::act(const Action& action) {
  if (action.id == "name") typed_ = action.value;
  if (action.id != "saveButton") return {};
  renameChild(game_, selectedChildIndex_, typed_);
  return successAndClose();
}

View EditChildNameViewController::view() const {
  View view{.title = "Choose a Name", .theme = Theme::family};
  const auto position = childPosition(state(), selectedChildIndex_);
  if (!position) {
    view.add(EmptyHint{.icon = "pencil", .text = "Nobody is there to be called."});
    return view;
  }
  view.picture = portraitOf(state(), state().saveAllChildList[*position]);
  view.add(TextField{
      .id = "name", .label = "Name", .value = typed_, .placeholder = "Enter a name", .maxLength = longestChildName});
  view.mainAction = Button{.id = "saveButton", .label = "Save the name", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
