// One song: polishing and releasing it while it is in production, how it does once it is out.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SongDetailViewController final : public Screen {
 public:
  SongDetailViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}
  Outcome act(const Action& action) override;
  View view() const override;

  /// To the marketing plans while the song is in production, to its statistics once it is out.
  Outcome marketingButton() const;
  /// Offered in production only; refused without an album to add it to.
  Outcome addToAlbumButton() const;
  /// To the song's video, or to where one is made; only once the song is out.
  Outcome musicVideoButton() const;

 private:
  void describeProduction(View& view, const Song& song) const;
  void describeReleased(View& view, const Song& song) const;

  int64_t songId_;
};

}  // namespace backbeat
