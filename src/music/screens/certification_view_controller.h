// The wall of records: how many songs and albums reached which certification.
#pragma once

#include "core/screen.h"

namespace backbeat {

class CertificationViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
