// Home: how the career stands, and what a week could hold.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ViewController final : public Screen {
 public:
  using Screen::Screen;
  /// The first load of a launch: the header is refreshed, and with it the calendar.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeStanding(View& view) const;
  void describeGoal(View& view) const;
  void describeWeek(View& view) const;
  void describeMusic(View& view) const;
};

}  // namespace backbeat
