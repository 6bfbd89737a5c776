// The artist as listeners see them on a streaming service: pictures, listeners, popular songs, albums, singles, videos,
// verses for others, merch and tour dates, a few words. Nothing of it is its own but the choice.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ArtistProfileViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describePopular(View& view) const;
  void describeAlbums(View& view) const;
  void describeSingles(View& view, const std::vector<size_t>& released) const;
  void describeVerses(View& view) const;
  void describeVideos(View& view) const;
  void describeAbout(View& view) const;
  void addRooms(View& view) const;
  Outcome followRooms(const Action& action) const;

  ListWindow albums_;
  ListWindow singles_;
  ListWindow verses_;
};

}  // namespace backbeat
