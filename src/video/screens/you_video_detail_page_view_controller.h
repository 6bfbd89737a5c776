// One video of the channel: how it is watched, and what people say.
#pragma once

#include "core/screen.h"

namespace backbeat {

class YouVideoDetailPageViewController final : public Screen {
 public:
  YouVideoDetailPageViewController(Game& game, int64_t videoId) : Screen(game), videoId_(videoId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  int64_t videoId_;
};

}  // namespace backbeat
