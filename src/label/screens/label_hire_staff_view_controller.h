// Who wants to work here.
#pragma once

#include <vector>

#include "label/hiring.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class LabelHireStaffViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;
  /// Draws the candidates of this visit.
  Outcome open() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  std::vector<Candidate> candidates_;
};

}  // namespace backbeat
