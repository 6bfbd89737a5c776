// One startup of the portfolio: who owns it, what happened to it, and this week's offer for the artist's shares.
#pragma once

#include "core/screen.h"

namespace backbeat {

class SellVentureSharesViewController final : public Screen {
 public:
  SellVentureSharesViewController(Game& game, int64_t businessId) : Screen(game), businessId_(businessId) {}
  /// Asks the company for its offer.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const Venture* venture() const;
  void describeOffer(View& view, const Venture& held) const;
  void describeOwners(View& view, const Venture& held) const;
  void describeNews(View& view, const Venture& held) const;

  int64_t businessId_;
};

}  // namespace backbeat
