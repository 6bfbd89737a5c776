#include "career/screens/daily_life_view_controller.h"

#include "core/menu.h"

namespace backbeat {

Outcome DailyLifeViewController::act(const Action& action) { return followMenu(game_, lifeTab, action); }

View DailyLifeViewController::view() const {
  View view{
      .title = "Daily Life", .subtitle = "What you do between the songs", .picture = person(state().myArtistsName)};
  addMenu(view, game_, lifeTab);
  return view;
}

}  // namespace backbeat
