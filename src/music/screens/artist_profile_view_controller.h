// The artist as listeners see them on a streaming service: picture, listeners, popular songs, albums, videos, a few
// words.
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
  void describeVideos(View& view) const;

  ListWindow albums_;
};

}  // namespace backbeat
