// The name of a child, which it will bear as an artist.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

class EditChildNameViewController final : public Screen {
 public:
  /// The child at that place of the list.
  EditChildNameViewController(Game& game, int64_t selectedChildIndex)
      : Screen(game), selectedChildIndex_(selectedChildIndex) {}

  /// Fills the field with the present name, unless nobody has chosen it.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  int64_t selectedChildIndex_;
  std::string typed_;
};

}  // namespace backbeat
