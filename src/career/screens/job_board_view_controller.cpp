#include "career/screens/job_board_view_controller.h"

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr std::string_view jobButtonId = "jobButton";

Row jobRow(const JobOffer& offer, size_t number, bool taken) {
  return {.picture = icon("briefcase"),
          .title = std::string(offer.job.jobTitle),
          .subtitle = "+" + std::to_string(truncate(offer.job.jobPay)) + "/week | " + std::to_string(offer.weeks) +
                      "/week contract",
          .value = "-" + std::to_string(offer.job.energyCost),
          .note = "energy a week",
          .selected = taken,
          .id = std::string(jobButtonId) + std::to_string(number + 1)};
}

}  // namespace

Outcome JobBoardViewController::open() {
  board_ = drawJobBoard(game_.random);
  return {};
}

Outcome JobBoardViewController::act(const Action& action) {
  if (action.id.rfind(jobButtonId, 0) != 0) return {};
  const auto number = wholeNumber(std::string_view(action.id).substr(jobButtonId.size()));
  if (!number || *number < 1) return {};
  return jobButton(static_cast<size_t>(*number - 1));
}

Outcome JobBoardViewController::jobButton(size_t number) {
  if (number >= board_.size()) return {};
  Outcome outcome = takeJob(game_, board_[number]);
  if (outcome.done()) taken_ = number;
  return outcome;
}

View JobBoardViewController::view() const {
  View view{.title = "Job Board", .subtitle = "New jobs at every visit"};
  if (state().weeklyJobContractRemaining > 0) {
    view.add(caption("Your contract runs for " + counted(state().weeklyJobContractRemaining, "more week") + " at " +
                     currency(state().weeklyJobIncome) + " a week."));
  }
  if (board_.empty()) {
    view.add(EmptyHint{.icon = "briefcase", .text = "NO JOBS AVAILABLE"});
  } else {
    Rows rows;
    for (size_t i = 0; i < board_.size(); ++i) rows.items.push_back(jobRow(board_[i], i, taken_ == i));
    view.add(std::move(rows));
  }
  view.help =
      Help{.title = "Jobs",
           .text =
               "A job pays in every weekly report and takes its energy every week, until its contract has run out. "
               "There is no way to quit.\n\nThe board asks for energy at each visit and never looks the same twice."};
  return view;
}

}  // namespace backbeat
