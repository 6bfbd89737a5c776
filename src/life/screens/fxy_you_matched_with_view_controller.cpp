#include "life/screens/fxy_you_matched_with_view_controller.h"

#include "core/own_photo.h"
#include "life/match_list.h"
#include "life/partner.h"

namespace backbeat {

namespace {

std::string whenMatched(const GameState& state, const Matches& match) {
  const int64_t weeks = state.weekNumberForTracking - match.weekMatched;
  return "You matched" + (weeks == 0 ? " this week" : " " + std::to_string(weeks) + " week(s) ago");
}

std::string dateIdeas(const Matches& match) {
  std::string ideas = "Date ideas? " + match.name + " likes...";
  for (const std::string& interest : match.interests) ideas += "\n" + interest;
  return ideas;
}

}  // namespace

Outcome FXYYouMatchedWithViewController::act(const Action& action) {
  return action.id == "askOutButton" ? askOut(game_, matchId_) : Outcome{};
}

View FXYYouMatchedWithViewController::view() const {
  View view{.title = "Match", .theme = Theme::love};
  const auto position = matchPosition(state(), matchId_);
  if (!position) {
    view.add(EmptyHint{.icon = "heartBroken", .text = "They are not here any more."});
    return view;
  }
  const Matches& match = state().saveAllMatchesList[*position];
  view.title = match.name;
  view.subtitle = whenMatched(state(), match);
  view.add(Poster{
      .pictures = {drawn(Picture::Kind::scene, "sunset", match.name), faceNow(state(), match)},
      .title = match.name,
      .text = match.matchTagline,
      .facts = {{.label = "Works as", .value = match.occupation + ", " + std::to_string(ageNow(state(), match))}}});
  view.add(Card{.picture = artistPicture(state()), .title = "You", .text = match.matchPickupLine});
  view.add(Card{.picture = faceNow(state(), match), .title = match.name, .text = match.pickupLineResponse});
  view.add(Text{.text = dateIdeas(match)});
  if (match.relationshipState < love::matched) {
    view.add(Text{.text = "\"" + match.breakupLine + "\"", .style = Text::Style::lead});
  }
  if (canAskOut(match)) {
    view.mainAction = Button{.id = "askOutButton", .label = "Ask Out", .style = Button::Style::primary};
  }
  return view;
}

}  // namespace backbeat
