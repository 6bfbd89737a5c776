#include "music/screens/set_album_pricing_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/view_words.h"
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
  View view{.title = "Set pricing"};
  const auto position = albumPosition(state(), albumId_);
  if (!position) {
    view.add(EmptyHint{.icon = "album", .text = "This album is no longer there."});
    return view;
  }
  const Album& album = state().saveAllAlbumList[*position];
  view.subtitle = album.title + " · now " + price(album.price);
  Choice choice{.id = "price",
                .label = "Price of a copy",
                .selected = static_cast<int64_t>(option_),
                .style = Choice::Style::segments};
  for (const double dollars : albumPrices) {
    const double earned = album.percentageOfEarnings * (dollars - state().albumProductionCosts);
    choice.options.push_back({.label = price(dollars), .note = "You earn " + price(earned) + " a copy"});
  }
  view.add(std::move(choice));
  view.add(caption("A copy costs " + price(state().albumProductionCosts) +
                   " to make, and your share of what is left is " + percentage(album.percentageOfEarnings * 100) +
                   "."));
  view.mainAction = Button{.id = "setPricingButton",
                           .label = "Set price to " + price(albumPrices[option_]),
                           .style = Button::Style::primary};
  view.help =
      Help{.title = "Dear or cheap",
           .text =
               "The dearer a copy, the fewer people buy it: at $15.99 about a fifth of those who would at $3.99. "
               "But a cheap copy leaves little after the cost of making it."};
  return view;
}

}  // namespace backbeat
