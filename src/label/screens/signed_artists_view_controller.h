// Everybody who has ever signed with the label.
#pragma once

#include <vector>

#include "label/screens/label_screen.h"

namespace backbeat {

class SignedArtistsViewController final : public LabelScreen {
 public:
  using LabelScreen::LabelScreen;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  std::vector<size_t> inOrder() const;

  ListWindow window_;
};

}  // namespace backbeat
