#include "career/screens/daily_life_view_controller.h"

#include "core/calendar.h"
#include "core/menu.h"
#include "core/own_photo.h"
#include "core/view_words.h"

namespace backbeat {

Outcome DailyLifeViewController::act(const Action& action) { return followMenu(game_, lifeTab, action); }

View DailyLifeViewController::view() const {
  View view{.title = "Daily Life", .subtitle = "What you do between the songs", .picture = artistPicture(state())};
  if (inFirstWeeks(state()) && state().weeklyJobIncome == 0) {
    view.add(hint("A job pays for the start. The Job Board below has one most weeks."));
  }
  addMenu(view, game_, lifeTab);
  return view;
}

}  // namespace backbeat
