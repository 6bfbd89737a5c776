// What stands under a video, and what it brought week by week.
#pragma once

#include "core/screen.h"

namespace backbeat {

class YouVideoDetailDescriptionPageViewController final : public Screen {
 public:
  YouVideoDetailDescriptionPageViewController(Game& game, int64_t videoId) : Screen(game), videoId_(videoId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeStatistics(View& view, const MusicVideo& video) const;

  int64_t videoId_;
};

}  // namespace backbeat
