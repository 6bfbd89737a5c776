// The family's book: the tree, and a line for each who was an artist.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FamilyDynastyViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  ListWindow window_;
};

}  // namespace backbeat
