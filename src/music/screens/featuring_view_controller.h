// Who sings along on the song in preparation.
#pragma once

#include <vector>

#include "core/screen.h"

namespace backbeat {

inline constexpr size_t mostGuestsOnASong = 3;

class FeaturingViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Lets go of picked artists who have left the label since.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Adds the guest of that picked id, or lets them go when they are on the song already. Refused past three guests,
  /// and by a guest who asks for more skill than the artist has.
  Outcome addButton(int64_t pickedId);
  /// Signed artists keep the name they came with.
  Outcome changeNameButton(int64_t pickedId);

 private:
  Row describe(int64_t pickedId, const std::string& name, double rating, double virality) const;
  bool isOnTheSong(int64_t pickedId) const;

  std::vector<int64_t> addedBefore_;  ///< guests who were on the song when the screen opened
};

}  // namespace backbeat
