#include "video/screens/you_description_view_controller.h"

#include "core/money.h"
#include "core/numbers.h"
#include "video/channel.h"

namespace backbeat {

Outcome YouDescriptionViewController::act(const Action& action) {
  if (action.id == "goToYouEditDescription") return goTo(action.id);
  return {};
}

View YouDescriptionViewController::view() const {
  View view{.title = "About", .subtitle = state().myArtistsName, .theme = Theme::video};
  view.add(Text{.text = channelMotto(state()), .style = Text::Style::lead});
  int64_t views = 0;
  for (const MusicVideo& video : state().saveAllMusicVideoList) views = add(views, video.totalViews);
  view.add(Tiles{{{.icon = "people", .label = "Subscribers", .value = withCommas(state().youVideoSubscriberCount)},
                  {.icon = "eye", .label = "Views", .value = withCommas(views)}}});
  if (!state().aboutDescription.empty()) {
    view.add(Heading{"Description"});
    view.add(Text{.text = state().aboutDescription});
  }
  if (!state().moreInfoDescription.empty()) {
    view.add(Heading{"More info"});
    view.add(Text{.text = state().moreInfoDescription});
  }
  if (state().aboutDescription.empty() && state().moreInfoDescription.empty()) {
    view.add(EmptyHint{.icon = "pencil", .text = "Your channel says nothing of itself yet."});
  }
  view.mainAction = Button{.id = "goToYouEditDescription", .label = "Edit", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
