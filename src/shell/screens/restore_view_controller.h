// The kept copies of the save, and the way back to each.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

class RestoreViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Outcome askAbout(const Snapshot& snapshot);
  Outcome askToDelete(const Snapshot& snapshot);
  Outcome deleteCopy(const Snapshot& snapshot);
  Outcome restore(std::string_view name);

  std::string wanted_;  ///< the copy to go back to, while another has to be given up for today's career
};

}  // namespace backbeat
