// One match: what was written, what they like, and asking them out.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FXYYouMatchedWithViewController final : public Screen {
 public:
  FXYYouMatchedWithViewController(Game& game, int64_t matchId) : Screen(game), matchId_(matchId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  int64_t matchId_;
};

}  // namespace backbeat
