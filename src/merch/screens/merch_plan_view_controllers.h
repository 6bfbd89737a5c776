// The plans of one of the three services behind the shop.
#pragma once

#include "core/screen.h"
#include "merch/plans.h"

namespace backbeat {

class MerchPlanViewController : public Screen {
 public:
  MerchPlanViewController(Game& game, const MerchService& service) : Screen(game), service_(service) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const MerchService& service_;
};

class MerchWebsiteViewController final : public MerchPlanViewController {
 public:
  explicit MerchWebsiteViewController(Game& game) : MerchPlanViewController(game, merchWebsite) {}
};

class MerchManufacturingViewController final : public MerchPlanViewController {
 public:
  explicit MerchManufacturingViewController(Game& game) : MerchPlanViewController(game, merchManufacturing) {}
};

class MerchLogisticsViewController final : public MerchPlanViewController {
 public:
  explicit MerchLogisticsViewController(Game& game) : MerchPlanViewController(game, merchLogistics) {}
};

}  // namespace backbeat
