// The label home.
#pragma once

#include "label/departments.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class LabelDetailViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;
  /// The ratings are put to work; coming back from another screen of the label does not.
  Outcome open() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  void describeDue(View& view) const;
  void describeDepartments(View& view, const LabelRatings& label) const;
  void describeRoster(View& view) const;
  void describeMoney(View& view, const LabelRatings& label) const;
  void describeWays(View& view) const;

  double storedRoyalties_ = 0;  ///< dollars; no week ends while this is open
};

}  // namespace backbeat
