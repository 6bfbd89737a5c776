// Which songs are played at the festival on the table.
#pragma once

#include <vector>

#include "core/screen.h"

namespace backbeat {

class ChooseSetListViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Orders the released songs, the best first.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Row describe(int64_t songId) const;

  std::vector<int64_t> songs_;  ///< ids, in the order shown
  ListWindow window_;
};

}  // namespace backbeat
