// What the screens of a label have in common: there is nothing on them and nothing to press once it is closed, which
// can happen on another tab.
#pragma once

#include "core/screen.h"

namespace backbeat {

class LabelScreen : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) final;
  View view() const final;

 protected:
  /// A press while the label stands.
  virtual Outcome press(const Action& action) = 0;
  virtual void describe(View& view) const = 0;
};

}  // namespace backbeat
