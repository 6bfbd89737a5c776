// Planning a tour, venue by venue.
#pragma once

#include "core/screen.h"
#include "live/tour_plan.h"

namespace backbeat {

class TourViewController final : public Screen {
 public:
  using Screen::Screen;

  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Shows at each venue that is added from now on: at least one.
  void increaseShowButton();
  void decreaseShowButton();
  Outcome startTouringButton();

 private:
  Row describe(const TourLocation& location) const;
  void describeVenues(View& view) const;

  TourPlan plan_;
  uint64_t diceThrows_ = 0;
};

}  // namespace backbeat
