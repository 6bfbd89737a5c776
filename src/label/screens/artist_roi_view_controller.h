// What has come of the label.
#pragma once

#include "label/accounts.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class ArtistRoiViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;
  /// The best return of any label is kept.
  Outcome open() override;
  /// A contract may have been renewed meanwhile.
  Outcome appear() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  LabelReturn return_;
  ListWindow window_;
};

}  // namespace backbeat
