// The statistics of a released song.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SongChartDetailViewController final : public Screen {
 public:
  SongChartDetailViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}
  Outcome act(const Action&) override { return {}; }
  View view() const override;

 private:
  int64_t songId_;
};

}  // namespace backbeat
