// One year as a picture to share and a few cards.
#pragma once

#include <optional>

#include "core/screen.h"
#include "recognition/year_in_review.h"

namespace backbeat {

class YearInReviewViewController final : public Screen {
 public:
  YearInReviewViewController(Game& game, int64_t year) : Screen(game), year_(year) {}

  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  int64_t year_;
  std::optional<YearInReview> review_;  // nothing where there is nothing to tell
};

}  // namespace backbeat
