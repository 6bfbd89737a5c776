#include "label/screens/label_screen.h"

namespace backbeat {

Outcome LabelScreen::act(const Action& action) {
  if (state().isLabelLaunched < 1) return {};
  return press(action);
}

View LabelScreen::view() const {
  View view{.title = "My Label", .theme = Theme::label};
  if (state().isLabelLaunched < 1) {
    view.add(EmptyHint{.icon = "label", .text = "There is no label. The doors are closed."});
    return view;
  }
  describe(view);
  return view;
}

}  // namespace backbeat
