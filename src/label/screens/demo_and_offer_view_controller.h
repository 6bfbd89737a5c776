// An artist whose demo was heard, and the terms that the label offers.
#pragma once

#include "label/offer.h"
#include "label/screens/label_screen.h"

namespace backbeat {

class DemoAndOfferViewController final : public LabelScreen {
 public:
  /// `artist` is somebody in one text; nonsense gives an empty table.
  DemoAndOfferViewController(Game& game, std::string_view artist) : LabelScreen(game), artist_(fromOneText(artist)) {}
  /// Puts the first terms on the table.
  Outcome open() override;

 protected:
  Outcome press(const Action& action) override;
  void describe(View& view) const override;

 private:
  Outcome step(SigningTerm term, const Action& action);
  void describeArtist(View& view) const;
  void describeTerms(View& view) const;

  ScoutedArtist artist_;
  SigningTerms terms_;
  bool offered_ = false;  ///< one offer a visit, also when it is refused at once: intended
};

}  // namespace backbeat
