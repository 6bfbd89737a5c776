#include "music/screens/set_album_marketing_view_controller.h"

#include "music/album_creation.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

struct PlanText {
  const char* icon;
  const char* title;
};
constexpr std::array<PlanText, marketingPlans.size()> planTexts = {{
    {"ticket", "Flyers and friends"},
    {"radio", "Local radio"},
    {"megaphone", "City campaign"},
    {"flame", "National campaign"},
    {"globe", "World campaign"},
}};

/// Nothing when what was to be marketed is gone, or came out while this screen stood on another tab.
template <class Work>
std::optional<std::string> titleOf(const RecordList<Work>& works, std::optional<size_t> position) {
  return position && !works[*position].isReleased ? std::optional(works[*position].title) : std::nullopt;
}

std::optional<std::string> titleOf(const GameState& state, const MarketingTarget& target) {
  return target.kind == MarketingTarget::Kind::album ? titleOf(state.saveAllAlbumList, albumPosition(state, target.id))
                                                     : titleOf(state.saveAllSongList, songPosition(state, target.id));
}

}  // namespace

Outcome SetAlbumMarketingViewController::act(const Action& action) {
  if (action.id == "setMarketingButton") return setMarketingButton();
  if (action.verb() == "plan") {
    if (const auto tier = optionNumber(action.argument(), marketingPlans.size())) return selectButton(*tier);
  }
  return {};
}

Outcome SetAlbumMarketingViewController::selectButton(size_t tier) {
  tier_ = tier;
  plan_ = selectMarketingPlan(game_.random, tier);
  return {};
}

Outcome SetAlbumMarketingViewController::setMarketingButton() {
  return titleOf(state(), target_) ? applyMarketingPlan(game_, target_, plan_) : Outcome{};
}

View SetAlbumMarketingViewController::view() const {
  const auto title = titleOf(state(), target_);
  if (!title) {
    View gone{.title = "Set marketing"};
    gone.add(EmptyHint{.icon = "megaphone", .text = "There is nothing to market any more."});
    return gone;
  }
  View view{.title = "Set marketing", .subtitle = *title};
  Rows rows;
  for (size_t tier = 0; tier < marketingPlans.size(); ++tier) {
    const MarketingPlan& plan = marketingPlans[tier];
    rows.items.push_back({.picture = icon(planTexts[tier].icon),
                          .title = planTexts[tier].title,
                          .subtitle = std::to_string(plan.leastScore) + " to " + std::to_string(plan.greatestScore) +
                                      " of " + std::to_string(mostMarketing),
                          .price = plan.cost,
                          .selected = tier_ == tier,
                          .id = "plan:" + std::to_string(tier)});
  }
  view.add(std::move(rows));
  view.mainAction = Button{.id = "setMarketingButton",
                           .label = tier_ ? "Set marketing" : "Leave it as it is",
                           .price = tier_ ? std::optional(plan_.cost) : std::nullopt,
                           .style = tier_ ? Button::Style::primary : Button::Style::secondary};
  view.help =
      Help{.title = "What marketing does",
           .text =
               "Marketing brings listeners who have never heard of you, and keeps a release in its strong weeks "
               "until it is used up. How much a plan brings is luck within its range.\n\nA plan replaces whatever "
               "marketing there was. An album's plan counts for each of its songs as well, and the album gains "
               "a little more with each song on it."};
  return view;
}

}  // namespace backbeat
