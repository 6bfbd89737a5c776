#include "life/screens/child_list_view_controller.h"

#include "core/view_words.h"
#include "life/children.h"
#include "life/screens/family_words.h"

namespace backbeat {

Outcome ChildListViewController::act(const Action& action) {
  if (action.id == "children") window_.moveTo(action.value);
  if (action.verb() == "child") return goTo("goToChildDetail", std::string(action.argument()));
  return {};
}

View ChildListViewController::view() const {
  View view{.title = "Children", .theme = Theme::family};
  const RecordList<Child>& children = state().saveAllChildList;
  if (children.empty()) {
    view.add(EmptyHint{.icon = "pram", .text = "A marriage is a good place to begin a family."});
    return view;
  }
  view.subtitle = std::to_string(state().childEnergyCost) + " energy a week";
  view.add(windowedRows("children", window_, static_cast<int64_t>(children.size()), [&](size_t i) {
    const Child& child = children[i];
    Row row{.picture = portraitOf(state(), child),
            .title = child.name,
            .subtitle = child.relationship,
            .value = standingText(state(), child),
            .opens = true,
            .id = "child:" + std::to_string(i)};
    if (isInFamily(child)) row.share = shareOf(child.admiration, mostAdmiration);
    return row;
  }));
  view.add(caption("The bar is how much they look up to you."));
  view.help = childrenHelp();
  return view;
}

}  // namespace backbeat
