#include "video/screens/you_edit_description_view_controller.h"

#include "core/view_words.h"
#include "music/about_text.h"
#include "video/channel.h"

namespace backbeat {

Outcome YouEditDescriptionViewController::open() {
  about_ = state().aboutDescription;
  moreInfo_ = state().moreInfoDescription;
  return {};
}

Outcome YouEditDescriptionViewController::act(const Action& action) {
  if (action.id == "about") about_ = action.value;
  if (action.id == "moreInfo") moreInfo_ = action.value;
  if (action.id == "saveButton") return saveButton();
  return {};
}

Outcome YouEditDescriptionViewController::saveButton() {
  writeAbout(game_, about_);
  writeMoreInfo(game_, moreInfo_);
  return successAndClose();
}

View YouEditDescriptionViewController::view() const {
  View view{.title = "Edit", .subtitle = "What the channel says", .theme = Theme::video};
  const auto longest = static_cast<int64_t>(longestAboutText);
  view.add(TextField{.id = "about",
                     .label = "Description",
                     .value = about_,
                     .placeholder = "Tell your viewers who you are",
                     .maxLength = longest,
                     .multiline = true});
  view.add(TextField{.id = "moreInfo",
                     .label = "More info",
                     .value = moreInfo_,
                     .placeholder = "Where else they find you",
                     .maxLength = longest,
                     .multiline = true});
  view.add(caption("The description stands on your artist profile too."));
  view.mainAction = Button{.id = "saveButton", .label = "Save", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
