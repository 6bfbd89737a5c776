// The artist's profile on Chirp and the feed below it: everybody's posts, newest first, the pinned one on top.
#pragma once

#include "core/screen.h"

namespace backbeat {

class TwitterProfileViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Brings the first followers once the artist is heard of, and lets the follow button pulse, once in a save.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Changes nothing: one cannot follow oneself.
  Outcome followButton();

 private:
  void describeProfile(View& view) const;
  void describeFeed(View& view) const;

  bool pulses_ = false;
  ListWindow feed_;
};

}  // namespace backbeat
