// Where a product begins: what it is, its name, how many, at which price.
#pragma once

#include <optional>
#include <vector>

#include "core/screen.h"
#include "merch/product_launch.h"

namespace backbeat {

class CreateNewMerchViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

  /// A row of the catalogue, from 0. The lowest price is chosen with it.
  Outcome selectMerchOption(size_t row);
  /// The order: one thousand units at step 0, one more each step.
  void setQuantity(size_t step);
  void setPrice(size_t index);
  Outcome launchMerchButton();

 private:
  ProductDraft draft() const;
  void describeOrder(View& view, const ProductDraft& product) const;
  void describeTotals(View& view, const ProductDraft& product) const;

  std::optional<size_t> option_;
  std::string name_;
  int64_t quantity_ = unitsPerStep;
  size_t price_ = 0;
  bool limitedEdition_ = false;
  int64_t diceThrows_ = 0;
};

}  // namespace backbeat
