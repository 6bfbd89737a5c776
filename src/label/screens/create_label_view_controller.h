// Where a label is founded.
#pragma once

#include <string>

#include "core/screen.h"
#include "label/launch.h"

namespace backbeat {

class CreateLabelViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Who comes back from the label that was just founded has nothing left to do here.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  std::string name_;
  std::string slogan_;
  size_t logo_ = firstLogo;
};

}  // namespace backbeat
