// The job board as one visit finds it.
#pragma once

#include <optional>

#include "career/job_board.h"
#include "core/screen.h"

namespace backbeat {

class JobBoardViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Draws the board anew.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Takes the job of row `number`, from 0; a row that is not there does nothing.
  Outcome jobButton(size_t number);

  const std::vector<JobOffer>& board() const { return board_; }

 private:
  std::vector<JobOffer> board_;
  std::optional<size_t> taken_;
};

}  // namespace backbeat
