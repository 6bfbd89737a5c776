// Which songs the record in preparation carries.
#pragma once

#include <vector>

#include "core/screen.h"

namespace backbeat {

class ChooseMerchSongListViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Lets go of picked songs that are no longer there.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Puts the song on the record, or takes it off again. Refused past fifteen songs.
  Outcome chooseSong(int64_t songId);

 private:
  std::vector<size_t> songsByRating() const;

  ListWindow songs_;
};

}  // namespace backbeat
