// Packs: what the device's shop has, and what it means to take one.
#pragma once

#include "core/screen.h"

namespace backbeat {

struct Pack;

class PacksViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Row rowOf(const Pack& pack, const PackOffer& offer) const;
};

}  // namespace backbeat
