// Everything the artist owns, and its share of the whole.
#pragma once

#include "core/screen.h"

namespace backbeat {

class NetWorthViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Nothing can be pressed: this screen only tells.
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
