// Settings: the look, names, the career as a file, a word to the makers, what this is, and the way back to the
// beginning.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SettingsViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Asks first.
  Outcome restartButton();

 private:
  Outcome restart();
  Outcome chooseAppearance(std::string_view option);

  bool thanked_ = false;  ///< the player would rate the game
};

}  // namespace backbeat
