// What the label does for its staff.
#pragma once

#include "label/screens/label_screen.h"

namespace backbeat {

class LabelBenefitsViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;
};

}  // namespace backbeat
