// An invitation to play at a festival.
#pragma once

#include "core/screen.h"
#include "live/festival_invitation.h"

namespace backbeat {

class FestivalInviteViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Draws the invitation.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome goToChooseSetList();

 private:
  FestivalInvitation invitation_;
};

}  // namespace backbeat
