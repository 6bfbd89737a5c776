// The music tab: the artist's songs and albums, and the way to new ones.
#pragma once

#include <optional>

#include "core/screen.h"

namespace backbeat {

class MusicViewController final : public Screen {
 public:
  using Screen::Screen;

  /// At the first load of a launch: the cost of living is made sure of, and a song list under its old key replaces the
  /// loaded one.
  Outcome open() override;
  /// Asks for the artist's name while there is none, and goes on to an album that was just made.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Opens the song screen. The press itself moves `songId` and `albumId` on by one, so that numbers go by; the first
  /// press of all ends the button's pulse.
  Outcome createSongButton();

  /// Opens the album screen; no number goes by here.
  Outcome createAlbumButton();

 private:
  /// The page of the album that was made since its button was pressed.
  Outcome toNewAlbum();
  void describeSongsInProduction(View& view, const std::vector<size_t>& inProduction) const;
  void describeReleasedSongs(View& view) const;
  void describeAlbums(View& view) const;

  bool showsAlbums_ = false;
  size_t songsSeen_ = 0;
  std::optional<int64_t> albumIdBefore_;
  ListWindow released_;
  ListWindow releasedAlbums_;
};

}  // namespace backbeat
