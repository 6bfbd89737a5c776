// Who shows their face in the video in preparation.
#pragma once

#include <vector>

#include "core/screen.h"

namespace backbeat {

inline constexpr size_t mostCameosInAVideo = 3;

class CameoViewController final : public Screen {
 public:
  using Screen::Screen;

  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Adds the face of that id, or lets it go when it is in the video already. Refused past three, and by whoever asks
  /// for more skill than the artist has.
  Outcome addButton(int64_t cameoId);

 private:
  Row describe(const CelebrityCameo& cameo, int64_t skill) const;

  std::vector<int64_t> addedBefore_;  ///< who was in the video when the screen opened
};

}  // namespace backbeat
