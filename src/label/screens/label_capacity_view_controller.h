// The label's office and its booths.
#pragma once

#include "label/screens/label_screen.h"

namespace backbeat {

class LabelCapacityViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;
};

}  // namespace backbeat
