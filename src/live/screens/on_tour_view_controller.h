// The tour under way: what was sold, where it goes next.
#pragma once

#include "core/screen.h"

namespace backbeat {

struct TourProgress;

class OnTourViewController final : public Screen {
 public:
  using Screen::Screen;

  /// A long route opens where the tour stands.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Rows routeOf(const TourProgress& tour) const;

  ListWindow route_;
};

}  // namespace backbeat
