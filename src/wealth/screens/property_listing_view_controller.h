// The market: one home at a time, and all others that are for sale.
#pragma once

#include "core/screen.h"
#include "wealth/property_catalogue.h"

namespace backbeat {

class PropertyListingViewController final : public Screen {
 public:
  using Screen::Screen;
  /// The dearest home that the cash reaches stands in front; without any, the first.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  const Property* shown() const;
  Outcome purchase(const Property& property);
  void describeOthers(View& view, const Property& property) const;

  int64_t propertyId_ = 0;
};

}  // namespace backbeat
