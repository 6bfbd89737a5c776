// The artist's page on the list of the rich: fortune, place in the world, and a life in figures.
#pragma once

#include "core/screen.h"
#include "wealth/rich_list.h"

namespace backbeat {

class ForbesDetailViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeFortune(View& view) const;
  void describeProfile(View& view) const;

  RichListVisit visit_;
};

}  // namespace backbeat
