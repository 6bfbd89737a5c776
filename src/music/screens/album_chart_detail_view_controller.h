// The statistics of a released album.
#pragma once

#include "core/screen.h"

namespace backbeat {

class AlbumChartDetailViewController final : public Screen {
 public:
  AlbumChartDetailViewController(Game& game, int64_t albumId) : Screen(game), albumId_(albumId) {}
  Outcome act(const Action&) override { return {}; }
  View view() const override;

 private:
  int64_t albumId_;
};

}  // namespace backbeat
