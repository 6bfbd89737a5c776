// The homes that the artist owns, one of them in front.
#pragma once

#include "core/screen.h"

namespace backbeat {

class PropertyPortfolioViewController final : public Screen {
 public:
  /// The home of that id stands in front; without it, the one bought last.
  PropertyPortfolioViewController(Game& game, int64_t propertyId) : Screen(game), propertyId_(propertyId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const InvestmentProperty* shown() const;
  void describeHome(View& view, const InvestmentProperty& home) const;
  void describeMarket(View& view) const;
  void describeOthers(View& view, const InvestmentProperty& home) const;

  int64_t propertyId_;
};

}  // namespace backbeat
