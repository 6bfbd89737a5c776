// The artist's channel: head, newest film, all the others.
#pragma once

#include "core/screen.h"

namespace backbeat {

class YouVideoViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Brings the first subscribers once the artist is heard of.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeHead(View& view) const;
  void describeFilms(View& view) const;
  Row film(size_t position) const;

  bool mostViewedFirst_ = false;
  ListWindow films_;
};

}  // namespace backbeat
