// A record label's offer: the letter, the terms to compare, and the pen.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ContractOfferViewController final : public Screen {
 public:
  using Screen::Screen;

  /// The first look at a waiting offer draws its terms; a later look finds them as they were.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  bool hasOffer() const;
};

}  // namespace backbeat
