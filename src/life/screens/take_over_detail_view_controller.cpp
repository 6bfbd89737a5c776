#include "life/screens/take_over_detail_view_controller.h"

#include "core/keep_aside.h"
#include "core/money.h"
#include "core/view_words.h"
#include "life/children.h"
#include "life/screens/family_words.h"
#include "life/takeover.h"

namespace backbeat {

Outcome TakeOverDetailViewController::act(const Action& action) {
  if (action.id == "playAsButton") return retireAndPlayAs(game_, selectedChildIndex_, {"takeOverConfirmed", ""});
  if (action.id == "takeOverConfirmed") return takeOverNow();
  if (action.verb() == giveUpVerb) {
    game_.saveFile.dropSnapshot(action.argument());
    return takeOverNow();
  }
  return {};
}

Outcome TakeOverDetailViewController::takeOverNow() {
  if (!heirPosition(state(), selectedChildIndex_)) return {};
  if (auto problem = keepAside(game_, SnapshotKind::takeover)) return std::move(*problem);
  return takeOver(game_, selectedChildIndex_);
}

View TakeOverDetailViewController::view() const {
  View view{.title = "Take Over", .theme = Theme::family};
  const auto position = heirPosition(state(), selectedChildIndex_);
  if (!position) {
    view.add(EmptyHint{.icon = "family", .text = "Nobody of age is there to take over."});
    return view;
  }
  const Child& heir = state().saveAllChildList[*position];
  const Inheritance inheritance = inheritanceOf(state(), heir);
  view.subtitle = "heir to " + state().myArtistsName;
  view.add(Poster{.pictures = {drawn(Picture::Kind::scene, "stage", heir.name), person(grownPortrait(heir))},
                  .title = heir.name,
                  .text = ageText(state(), heir) + (heir.occupation.empty() ? "" : "\n" + heir.occupation)});
  view.add(Rows{
      .items = {{.picture = icon("megaphone"), .title = "Followers: ", .value = withCommas(inheritance.followers)},
                {.picture = icon("cash"),
                 .title = "Inheritance: ",
                 .value = currency(static_cast<double>(inheritance.cash)),
                 .tone = inheritance.cash < 0 ? Tone::bad : Tone::plain},
                {.picture = icon("bolt"), .title = "Max Energy: ", .value = std::to_string(inheritance.maxEnergy)}}});
  view.add(talentBars(heir, ""));
  view.add(caption("You need " + std::to_string(takeoverEnergy) +
                   " energy for this step, and keep it. A talent below 1 begins at 1."));
  view.mainAction = Button{.id = "playAsButton", .label = "PLAY AS " + heir.name, .style = Button::Style::primary};
  view.help = childrenHelp();
  return view;
}

}  // namespace backbeat
