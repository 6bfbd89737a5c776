// The startups that the artist holds a part of: what they are worth, what is new of them, and each of them.
#pragma once

#include "core/screen.h"

namespace backbeat {

class VenturePortfolioViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  void describeWorth(View& view) const;
  void describeNews(View& view) const;
  void describeHoldings(View& view) const;
  void describeCompanies(View& view) const;
};

}  // namespace backbeat
