// What a copy of an album costs.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SetAlbumPricingViewController final : public Screen {
 public:
  SetAlbumPricingViewController(Game& game, int64_t albumId) : Screen(game), albumId_(albumId) {}
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome setPricingButton();

 private:
  int64_t albumId_;
  size_t option_ = 0;  ///< always begins at the lowest price, whatever the album costs now
};

}  // namespace backbeat
