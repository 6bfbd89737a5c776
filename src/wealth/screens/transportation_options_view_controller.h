// The garage: the artist's vehicles, one of them on the lit floor, and all that is for sale.
#pragma once

#include "core/screen.h"

namespace backbeat {

class TransportationOptionsViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const Transportation* shown() const;
  void describeFloor(View& view, const Transportation& vehicle) const;
  void describeOwn(View& view, const Transportation& vehicle) const;
  void describeShowroom(View& view) const;

  int64_t id_ = 0;  ///< of the vehicle on the floor; unless it is owned, the one bought last stands there
};

}  // namespace backbeat
