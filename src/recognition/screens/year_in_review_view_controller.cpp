#include "recognition/screens/year_in_review_view_controller.h"

#include "recognition/year_in_review.h"

namespace backbeat {

Outcome YearInReviewViewController::open() {
  if (!hasReview(state(), year_)) return {};
  story_ = storyOfYear(state(), year_);
  cards_ = cardsOfYear(state(), year_);
  return {};
}

Outcome YearInReviewViewController::act(const Action& action) {
  return action.id == "doneButton" ? closeScreen() : Outcome{};
}

View YearInReviewViewController::view() const {
  View view{.title = "Your Year"};
  view.aside = Button{.id = "doneButton", .label = "Done"};
  if (!story_) {
    view.add(EmptyHint{.icon = "hourglass", .text = "There is nothing to tell of that year"});
    return view;
  }
  view.add(*story_);
  for (const Card& card : cards_) view.add(card);
  return view;
}

}  // namespace backbeat
