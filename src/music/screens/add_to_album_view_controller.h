// Picks the album in production that a song goes on.
#pragma once

#include "core/screen.h"

namespace backbeat {

class AddToAlbumViewController final : public Screen {
 public:
  AddToAlbumViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  int64_t songId_;
  ListWindow albums_;
};

}  // namespace backbeat
