// One child: how it grows up, what it has learned, and what the two of you can do.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ChildDetailViewController final : public Screen {
 public:
  /// The child at that place of the list.
  ChildDetailViewController(Game& game, int64_t selectedChildIndex)
      : Screen(game), selectedChildIndex_(selectedChildIndex) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describe(View& view, const Child& child) const;
  void describeFacts(View& view, const Child& child) const;
  void describeActions(View& view, const Child& child) const;

  int64_t selectedChildIndex_;
};

}  // namespace backbeat
