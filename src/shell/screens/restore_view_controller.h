// The kept copies of the save, and the way back to each.
#pragma once

#include "core/screen.h"

namespace backbeat {

class RestoreViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Outcome askToRestore(std::string_view name);
  Outcome restore(std::string_view name);
  bool isKept(std::string_view name) const;
};

}  // namespace backbeat
