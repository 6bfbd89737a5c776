#include "music/screens/set_album_pricing_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "music/album_creation.h"
#include "music/album_release.h"

namespace backbeat {

Outcome SetAlbumPricingViewController::act(const Action& action) {
  if (action.id == "setPricingButton") return setPricingButton();
  if (action.id == "price") {
    if (const auto number = optionNumber(action.value, albumPrices.size())) option_ = *number;
  }
  return {};
}

Outcome SetAlbumPricingViewController::setPricingButton() {
  return setAlbumPricing(game_, albumId_, albumPrices[option_]);
}

View SetAlbumPricingViewController::view() const {
  View view;
  view.title = "Set Pricing";
  const auto position = albumPosition(state(), albumId_);
  if (!position) {
    view.add(EmptyHint{"album", "This album is no longer there."});
    return view;
  }
  const Album& album = state().saveAllAlbumList[*position];
  view.subtitle = album.title + " · now " + price(album.price);
  Choice choice;
  choice.id = "price";
  choice.label = "Price of a copy";
  choice.selected = static_cast<int64_t>(option_);
  for (const double dollars : albumPrices) {
    const double earned = album.percentageOfEarnings * (dollars - state().albumProductionCosts);
    choice.options.push_back({price(dollars), "You earn " + price(earned) + " a copy", Tone::plain, {}});
  }
  view.add(std::move(choice));
  view.add(Text{"A copy costs " + price(state().albumProductionCosts) + " to make, and your share of what is left is " +
                    percentage(album.percentageOfEarnings * 100) + ".",
                Tone::plain, Text::Style::caption});
  Button set;
  set.id = "setPricingButton";
  set.label = "Set Price to " + price(albumPrices[option_]);
  set.style = Button::Style::primary;
  view.mainAction = std::move(set);
  view.help = Help{"Dear or cheap",
                   "The dearer a copy, the fewer people buy it: at $15.99 about a fifth of those who would at $3.99. "
                   "But a cheap copy leaves little after the cost of making it."};
  return view;
}

}  // namespace backbeat
