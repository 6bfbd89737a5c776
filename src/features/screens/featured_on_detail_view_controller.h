// Another artist's song with a verse of the player, and how it has done.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FeaturedOnDetailViewController final : public Screen {
 public:
  FeaturedOnDetailViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}
  Outcome act(const Action&) override { return {}; }
  View view() const override;

 private:
  int64_t songId_;
};

}  // namespace backbeat
