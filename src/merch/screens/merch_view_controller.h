// The shop: what is on the shelf, the plans behind it, and what was there once.
#pragma once

#include "core/screen.h"

namespace backbeat {

class MerchViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeShelf(View& view) const;
  void describePlans(View& view) const;
  void describeRetired(View& view) const;

  ListWindow retired_;
};

}  // namespace backbeat
