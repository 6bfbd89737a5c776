#include "life/screens/engagement_ring_view_controller.h"

#include "life/engagement.h"
#include "life/partner.h"

namespace backbeat {

Outcome EngagementRingViewController::act(const Action& action) {
  if (action.verb() != "ring") return {};
  const auto number = optionNumber(action.argument(), rings.size());
  return number ? propose(game_, *number) : Outcome{};
}

View EngagementRingViewController::view() const {
  View view{.title = "Engagement Ring", .theme = Theme::love};
  const auto position = partnerPosition(state());
  if (!position) {
    view.add(EmptyHint{.icon = "ring", .text = "Nobody to give it to."});
    return view;
  }
  if (!canPropose(state())) {
    view.add(EmptyHint{.icon = "ring", .text = "Not now: a ring wants its moment."});
    return view;
  }
  view.subtitle = "For " + state().saveAllMatchesList[*position].name;
  Rows rows{.style = Rows::Style::shelf};
  for (size_t i = 0; i < rings.size(); ++i) {
    rows.items.push_back({.picture = drawn(Picture::Kind::object, rings[i].form, rings[i].imageString),
                          .title = std::string(rings[i].name) + std::string(rings[i].cut),
                          .price = rings[i].price(),
                          .id = "ring:" + std::to_string(i)});
  }
  view.add(std::move(rows));
  return view;
}

}  // namespace backbeat
