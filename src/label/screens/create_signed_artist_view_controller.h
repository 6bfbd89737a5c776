// An artist after the player's own idea.
#pragma once

#include "label/artist_creation.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class CreateSignedArtistViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;
  /// Counts the points that there are to give.
  Outcome open() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  ArtistIdea idea_;
};

}  // namespace backbeat
