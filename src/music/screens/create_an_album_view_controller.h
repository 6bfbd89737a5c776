// Where an album begins: a title and a cover.
#pragma once

#include "core/screen.h"

namespace backbeat {

class CreateAnAlbumViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Makes sure that "Single" stands first among the albums.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome createAlbumButton();

 private:
  Outcome takePhoto(const std::string& address);
  /// What the album will wear: the player's photo, or the picked cover.
  std::string imageString() const;

  std::string title_;
  std::string photo_;  ///< data: address, or "" for a generated cover
  size_t cover_ = 0;
  int64_t diceThrows_ = 0;
};

}  // namespace backbeat
