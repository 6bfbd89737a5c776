// Where marketing is bought, for an album or for a song.
#pragma once

#include <optional>

#include "core/screen.h"
#include "music/marketing_plans.h"

namespace backbeat {

class SetAlbumMarketingViewController final : public Screen {
 public:
  SetAlbumMarketingViewController(Game& game, MarketingTarget target) : Screen(game), target_(target) {}
  Outcome act(const Action& action) override;
  View view() const override;

  /// Picks the plan of a tier, 0 to 4, and draws what it brings; again at each press.
  Outcome selectButton(size_t tier);
  Outcome setMarketingButton();

 private:
  MarketingTarget target_;
  std::optional<size_t> tier_;
  SelectedPlan plan_;
};

}  // namespace backbeat
