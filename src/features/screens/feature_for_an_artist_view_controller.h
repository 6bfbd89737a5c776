// Another artist's offer: a verse on a track of theirs. One offer a visit.
#pragma once

#include "core/screen.h"
#include "features/verse_offer.h"

namespace backbeat {

class FeatureForAnArtistViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Draws the offer.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome acceptButton();
  Outcome negotiateButton();

 private:
  Outcome askFor(std::string_view step);
  void describeTerms(View& view) const;

  VerseOffer offer_;
  int64_t pointsAsked_ = 5;  ///< of royalty, above the offer
};

}  // namespace backbeat
