// One album: its price, marketing, songs and release while it is in production, how it sells once it is out.
#pragma once

#include "core/screen.h"

namespace backbeat {

class AlbumDetailViewController final : public Screen {
 public:
  AlbumDetailViewController(Game& game, int64_t albumId) : Screen(game), albumId_(albumId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeProduction(View& view, const Album& album) const;
  void describeReleased(View& view, const Album& album) const;
  void describeSongs(View& view) const;

  int64_t albumId_;
  ListWindow songs_;
};

}  // namespace backbeat
