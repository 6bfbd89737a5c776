// The contract in force: how long it runs, what is still owed, its terms, and the way out.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SignedContractViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
