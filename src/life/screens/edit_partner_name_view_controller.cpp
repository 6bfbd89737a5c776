#include "life/screens/edit_partner_name_view_controller.h"

#include "life/partner.h"
#include "life/relationship.h"

namespace backbeat {

Outcome EditPartnerNameViewController::open() {
  const auto position = partnerPosition(state());
  if (position) typed_ = state().saveAllMatchesList[*position].name;
  return {};
}

Outcome EditPartnerNameViewController::act(const Action& action) {
  if (action.id == "name") typed_ = action.value;
  if (action.id != "saveButton") return {};
  renamePartner(game_, typed_);
  return successAndClose();
}

View EditPartnerNameViewController::view() const {
  View view{.title = "Change the Name", .theme = Theme::love};
  const auto position = partnerPosition(state());
  if (!position) {
    view.add(EmptyHint{.icon = "pencil", .text = "Nobody is there to be called."});
    return view;
  }
  view.picture = faceNow(state(), state().saveAllMatchesList[*position]);
  view.add(TextField{.id = "name", .label = "Name", .value = typed_, .maxLength = longestPartnerName});
  view.mainAction = Button{.id = "saveButton", .label = "Save the name", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
