// Somebody liked the player back.
#pragma once

#include "core/screen.h"

namespace backbeat {

class RelationshipMatchViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
