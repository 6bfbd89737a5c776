// Where the two texts of the channel are written.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

class YouEditDescriptionViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Outcome saveButton();

  std::string about_;
  std::string moreInfo_;
};

}  // namespace backbeat
