// Another name for the partner.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

class EditPartnerNameViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Fills the field with the present name.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  std::string typed_;
};

}  // namespace backbeat
