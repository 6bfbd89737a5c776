#include "life/screens/fxy_dating_view_controller.h"

#include "core/view_words.h"
#include "life/dating.h"
#include "life/partner.h"

namespace backbeat {

Outcome FXYDatingViewController::act(const Action& action) {
  if (action.id == "seekingManOrWoman") return seekingManOrWoman(action);
  if (action.id == "goToFXYMatching" || action.id == "goToFxyMatchList") return goTo(action.id);
  return {};
}

Outcome FXYDatingViewController::seekingManOrWoman(const Action& action) {
  constexpr size_t options = 2;
  if (const auto option = optionNumber(action.value, options)) {
    game_.launch.dating.seekingPreference = *option == 0 ? seekingWoman : seekingMan;
  }
  return {};
}

View FXYDatingViewController::view() const {
  View view{.title = "FXY", .subtitle = "Somebody out there knows your songs", .theme = Theme::love};
  const auto partner = partnerPosition(state());
  view.add(Poster{.pictures = {drawn(Picture::Kind::scene, "sunset", state().myArtistsName)},
                  .kicker = "FXY Dating App",
                  .title = partner ? "Looking around?" : "Who is it tonight?",
                  .text = partner ? state().saveAllMatchesList[*partner].name + " would not like to see this."
                                  : "Swipe, match, and ask them out."});
  view.add(Choice{.id = "seekingManOrWoman",
                  .label = "Show me",
                  .options = {{.label = "Women"}, {.label = "Men"}},
                  .selected = game_.launch.dating.seekingPreference == seekingWoman ? 0 : 1,
                  .style = Choice::Style::segments});
  const size_t matches = state().saveAllMatchesList.size();
  view.add(Rows{.items = {wayTo("goToFxyMatchList", "message", "Messages",
                                matches == 0 ? "Nobody has liked you back yet" : "Everybody who liked you back",
                                matches == 0 ? "" : std::to_string(matches))}});
  view.add(caption("A swipe takes " + std::to_string(swipeCost.energy) +
                   " energy, whichever way. The more charisma you have, the more of them like you back."));
  view.mainAction = Button{.id = "goToFXYMatching", .label = "Start Swiping", .style = Button::Style::primary};
  view.help =
      Help{.title = "FXY",
           .text =
               "Pass with a swipe to the left, like with one to the right, and give a star upwards.\n\nWho likes "
               "you back waits under Messages. Whoever says yes to a date gives you energy every week, for as "
               "long as it lasts.\n\nWith a partner at home, opening the messages of others is a risk."};
  return view;
}

}  // namespace backbeat
