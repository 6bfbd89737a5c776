// Who the partner is.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ProfilePartnerDetail final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
