// The whole of one finished life.
#pragma once

#include "core/screen.h"

namespace backbeat {

class DynastyDetailViewController final : public Screen {
 public:
  /// The life at that place of the family's book.
  DynastyDetailViewController(Game& game, int64_t index) : Screen(game), index_(index) {}
  Outcome act(const Action&) override { return {}; }
  View view() const override;

 private:
  int64_t index_;
};

}  // namespace backbeat
