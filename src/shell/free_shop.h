// The shop of a device that asks no money: every pack is free, and it answers as soon as it is asked.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/score_keeper.h"

namespace backbeat {

class FreeShop : public ScoreKeeper {
 public:
  void requestReview() override { reviewAsked_ = true; }
  std::vector<PackOffer> packOffers() const override;
  void purchase(std::string_view product) override { asked_ = product; }

  /// The product that was asked for since the last call, for whoever answers it; "" for none.
  std::string takeAsked() { return std::exchange(asked_, ""); }
  /// Whether a rating was asked for since the last call.
  bool takeReview() { return std::exchange(reviewAsked_, false); }

 private:
  std::string asked_;
  bool reviewAsked_ = false;
};

/// What such a shop answers. `transaction` is a name that no other purchase has.
PurchaseAnswer freeAnswer(std::string product, std::string transaction);

}  // namespace backbeat
