// The chart of the week, and everything that ever charted.
#pragma once

#include <vector>

#include "core/screen.h"

namespace backbeat {

class BillboardViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Puts old hits out to pasture, then clears away the songs of artists who left the label; the rows are shown as they
  /// stand after both.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Turns between the chart and its history.
  Outcome historyButton();

 private:
  std::vector<size_t> rowsShown() const;
  Row describe(const BillboardSong& song) const;

  bool history_ = false;
  ListWindow window_;
};

}  // namespace backbeat
