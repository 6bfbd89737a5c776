// Where a released song gets its video: style, director, promotion, cameos.
#pragma once

#include <vector>

#include "core/screen.h"
#include "video/video_creation.h"

namespace backbeat {

class CreateAMusicVideoViewController final : public Screen {
 public:
  CreateAMusicVideoViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}

  /// Draws what the directors can do this time, then the gift.
  Outcome open() override;
  /// Draws the gift anew when other cameos were picked meanwhile.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// The video as chosen so far.
  VideoDraft draft() const;

 private:
  void refresh();
  void describeChoices(View& view, const VideoDraft& video, const std::string& songTitle) const;

  int64_t songId_;
  std::vector<Director> directors_;
  size_t style_ = 0;
  size_t director_ = 0;
  size_t promotion_ = 0;
  int64_t promotionScore_ = 0;
  int64_t viralityBoost_ = 0;
  std::vector<int64_t> cameos_;  ///< for whom the gift was drawn
};

}  // namespace backbeat
