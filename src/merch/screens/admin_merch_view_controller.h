// One product: how it sells, ordering more of it, taking it off the shelf.
#pragma once

#include <optional>

#include "core/screen.h"

namespace backbeat {

class AdminMerchViewController final : public Screen {
 public:
  AdminMerchViewController(Game& game, int64_t merchId) : Screen(game), merchId_(merchId) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  /// What the last press asked, until the next one.
  struct Question {
    bool restock = false;
    std::optional<double> offer;  ///< dollars a unit
  };

  Outcome answer(const Action& action, const Question& asked);
  void describeSales(View& view, const Merch& product) const;
  void describeMoney(View& view, const Merch& product) const;
  void describeSongs(View& view, const Merch& product) const;
  void describeActions(View& view, const Merch& product) const;

  int64_t merchId_;
  Question asked_;
};

}  // namespace backbeat
