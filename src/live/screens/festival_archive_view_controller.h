// Festivals played, and those that are booked.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FestivalArchiveViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Looks at the next festival, or at the latest when none is booked.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  bool isAhead(const Festival& festival) const;
  bool comesFirst(const Festival& a, const Festival& b) const;
  void describeSelected(View& view) const;
  Row describe(const Festival& festival) const;

  int64_t selected_ = -1;  ///< id of the one whose bill is shown
  ListWindow past_;
};

}  // namespace backbeat
