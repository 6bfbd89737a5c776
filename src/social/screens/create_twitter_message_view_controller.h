// The composer of the feed.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

class CreateTwitterMessageViewController final : public Screen {
 public:
  /// `songId` -1, or the song in production that the post announces: the text then begins by naming it.
  CreateTwitterMessageViewController(Game& game, int64_t songId) : Screen(game), songId_(songId) {}

  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Posts the text as it stands; a refused one stays in the field.
  Outcome chirpButton();

 private:
  int64_t songId_;
  std::string message_;
};

}  // namespace backbeat
