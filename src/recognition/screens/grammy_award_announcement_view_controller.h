// The night of the winners, envelope by envelope.
#pragma once

#include <optional>

#include "recognition/screens/award_night.h"

namespace backbeat {

class GrammyAwardAnnouncementViewController final : public AwardNight {
 public:
  using AwardNight::AwardNight;

  /// Decides the winners, unless they are decided.
  Outcome open() override;

 protected:
  std::string headline() const override;
  void describeField(View& view, const AwardField& field) const override;
  std::string withoutEnvelopes() const override;

 private:
  /// Who holds the trophy: the nomination that won, else one of the rivals, the same whenever it is told. Nobody where
  /// all five are the artist's and the label's and none of them won.
  std::optional<size_t> winnerOf(const AwardField& field) const;
};

}  // namespace backbeat
