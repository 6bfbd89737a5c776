#include "recognition/screens/year_in_review_view_controller.h"

namespace backbeat {

Outcome YearInReviewViewController::open() {
  if (!hasReview(state(), year_)) return {};
  review_ = reviewOfYear(state(), year_);
  return {};
}

Outcome YearInReviewViewController::act(const Action& action) {
  return action.id == "doneButton" ? closeScreen() : Outcome{};
}

View YearInReviewViewController::view() const {
  View view{.title = "Your Year"};
  view.aside = Button{.id = "doneButton", .label = "Done"};
  if (!review_) {
    view.add(EmptyHint{.icon = "hourglass", .text = "There is nothing to tell of that year"});
    return view;
  }
  view.add(review_->story);
  for (const Card& card : review_->cards) view.add(card);
  return view;
}

}  // namespace backbeat
