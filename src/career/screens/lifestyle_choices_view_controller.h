// One category of how the artist lives, and its five options.
#pragma once

#include "career/lifestyle.h"
#include "core/screen.h"

namespace backbeat {

class LifestyleChoicesViewController final : public Screen {
 public:
  /// `category` is a code of the ledger, 0 to 4; any other number gives a screen with nothing to choose.
  LifestyleChoicesViewController(Game& game, int64_t category);
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const LifestyleCategory* category_ = nullptr;
};

}  // namespace backbeat
