// The songs of an artist's album.
#pragma once

#include "label/screens/label_screen.h"

namespace backbeat {

class SignedArtistSongListViewController final : public LabelScreen {
 public:
  SignedArtistSongListViewController(Game& game, int64_t albumId) : LabelScreen(game), albumId_(albumId) {}

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  int64_t albumId_;
};

}  // namespace backbeat
