// Where a song is made: title, writer, musicians, studio, guests, album, genre.
#pragma once

#include <array>

#include "core/screen.h"
#include "music/production_options.h"
#include "music/song_creation.h"

namespace backbeat {

class CreateASongViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Draws the adjustments of the three choice lists, and makes sure that "Single" stands among the albums.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome createSongButton();

  /// Titles the picker offers: "Single", then every album in production with fewer than 20 songs as "title (count)".
  std::vector<std::string> albumPicker() const;

  /// The song as chosen so far.
  SongDraft draft() const;

 private:
  ProductionOptions options_;
  std::string title_;
  std::array<size_t, 3> chosen_ = {0, 0, 0};  // writing, musicality, studio
  std::string albumLabel_ = "Single";
  int64_t genre_ = 0;
  bool isExplicit_ = false;
  int64_t diceThrows_ = 0;
};

}  // namespace backbeat
