// All goals of a life: what is reached, and how far the others are.
#pragma once

#include <vector>

#include "core/screen.h"
#include "recognition/achievements.h"

namespace backbeat {

class AchievementsViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Completes what is reached by now; what that brings is celebrated until the screen is left.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  struct Standing {
    const Achievement* goal = nullptr;
    bool isCompleted = false;
    Progress progress;  ///< as the screen became visible
  };

  void describeStacks(View& view) const;
  void describeReached(View& view) const;
  void describeNearest(View& view) const;
  void describeKind(View& view, GoalKind kind) const;
  static Row rowOf(const Standing& standing);

  std::vector<Standing> standings_;
  std::vector<const Achievement*> reached_;  // just now
};

}  // namespace backbeat
