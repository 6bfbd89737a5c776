// Whom the scouts have found.
#pragma once

#include <vector>

#include "label/scouted_artist.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class FindNewArtistsViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;
  /// Draws the artists of this visit.
  Outcome open() override;
  /// Whoever stood here has moved on once an offer was discussed: others are drawn.
  Outcome appear() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  std::vector<ScoutedArtist> artists_;
  bool heardOne_ = false;
};

}  // namespace backbeat
