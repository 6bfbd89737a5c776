#include "career/screens/daily_life_view_controller.h"

#include "core/menu.h"
#include "core/own_photo.h"

namespace backbeat {

Outcome DailyLifeViewController::act(const Action& action) { return followMenu(game_, lifeTab, action); }

View DailyLifeViewController::view() const {
  View view{.title = "Daily Life", .subtitle = "What you do between the songs", .picture = artistPicture(state())};
  addMenu(view, game_, lifeTab);
  return view;
}

}  // namespace backbeat
