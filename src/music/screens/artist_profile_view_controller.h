// The artist as listeners see them on a streaming service: picture, listeners, popular songs, albums, videos, verses
// for others, a few words.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ArtistProfileViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Outcome takePhoto(const std::string& address);
  void describePopular(View& view) const;
  void describeAlbums(View& view) const;
  void describeVerses(View& view) const;
  void addLaterRooms(View& view) const;
  Outcome followLaterRooms(const Action& action) const;
  void describeVideos(View& view) const;

  ListWindow albums_;
  ListWindow verses_;
};

}  // namespace backbeat
