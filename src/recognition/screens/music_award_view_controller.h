// The nominations of the year, field by field. Whoever sees them has them drawn.
#pragma once

#include "recognition/screens/award_night.h"

namespace backbeat {

class MusicAwardViewController final : public AwardNight {
 public:
  using AwardNight::AwardNight;

  /// Draws the year's nominations, unless they were drawn.
  Outcome open() override;

 protected:
  std::string headline() const override;
  std::string genreHeading() const override { return "GENRE NOMINATIONS"; }
  void describeField(View& view, const AwardField& field) const override;
  std::string withoutEnvelopes() const override;
};

}  // namespace backbeat
