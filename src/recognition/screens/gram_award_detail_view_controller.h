// What the artist and the label were ever nominated for, and won.
#pragma once

#include "core/screen.h"

namespace backbeat {

class GramAwardDetailViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeCareer(View& view) const;

  ListWindow window_;
};

}  // namespace backbeat
