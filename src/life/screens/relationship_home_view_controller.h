// Home with the partner: how the two of them are, and what they can do together.
#pragma once

#include "core/screen.h"

namespace backbeat {

class RelationshipHomeViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describe(View& view, const Matches& partner) const;
};

}  // namespace backbeat
