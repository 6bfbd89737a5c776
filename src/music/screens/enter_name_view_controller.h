// Asks for the artist's name, once in a life.
#pragma once

#include "core/screen.h"

namespace backbeat {

class EnterNameViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Takes the field's text as it stands, see nameArtist.
  Outcome saveButton();

 private:
  Outcome startButton();
  std::string suggested() const;

  std::string name_;
};

}  // namespace backbeat
