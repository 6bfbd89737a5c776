// A round that is open: what the money buys, what that is worth, and what has to happen for it to pay.
#pragma once

#include <optional>

#include "core/screen.h"
#include "wealth/venture_rounds.h"

namespace backbeat {

class InvestmentOptionViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Takes the deal off the table and draws its round.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome investButton();
  Outcome passButton();

 private:
  int64_t percentOf(size_t option) const;
  std::string nameOf() const;
  void describeCompany(View& view) const;
  void describeOptions(View& view) const;
  void describeStake(View& view) const;

  std::optional<FundingOffer> offer_;
  size_t option_ = 0;  ///< all that is offered, or half of it
};

}  // namespace backbeat
