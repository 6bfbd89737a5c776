#include "life/screens/relationship_match_view_controller.h"

#include "core/own_photo.h"
#include "life/dating.h"
#include "life/partner.h"

namespace backbeat {

Outcome RelationshipMatchViewController::act(const Action& action) {
  if (action.id == "messageButton") return createMatchRecord(game_);
  if (action.id == "keepSwipingButton") {
    keepSwiping(game_);
    return closeScreen();
  }
  return {};
}

View RelationshipMatchViewController::view() const {
  const Matches& match = game_.launch.dating.pendingMatch;
  View view{.title = "It's a match", .theme = Theme::love};
  view.aside = Button{.id = "keepSwipingButton", .label = "Keep Swiping"};
  if (match.name.empty()) {
    view.add(EmptyHint{.icon = "heart", .text = "Nobody has liked you back just now."});
    return view;
  }
  view.add(Poster{.pictures = {artistPicture(state()), faceOf(match)},
                  .kicker = "It's a match",
                  .title = "You and " + match.name + " liked each other.",
                  .text = match.matchTagline,
                  .mood = Poster::Mood::celebrate});
  view.mainAction = Button{.id = "messageButton", .label = "Send a Message", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
