#include "wealth/screens/sell_venture_shares_view_controller.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/money.h"
#include "core/numbers.h"
#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/net_assets.h"
#include "wealth/screens/venture_words.h"
#include "wealth/venture_rounds.h"
#include "wealth/venture_sale.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

Gauge ownerOf(std::string name, int64_t percent) {
  return {.label = std::move(name), .value = std::to_string(percent) + "%", .share = shareOf(percent, int64_t{100})};
}

/// Those who led its rounds with all that they hold, each once, in the order in which they came.
std::vector<std::pair<std::string, int64_t>> investorsOf(const Venture& held) {
  std::vector<std::pair<std::string, int64_t>> investors;
  const size_t rounds = std::min(held.shareholderName.size(), held.shareholderPercentage.size());
  for (size_t i = 0; i < rounds; ++i) {
    const auto known = std::find_if(investors.begin(), investors.end(),
                                    [&](const auto& each) { return each.first == held.shareholderName[i]; });
    if (known == investors.end()) {
      investors.emplace_back(held.shareholderName[i], held.shareholderPercentage[i]);
    } else {
      known->second = add(known->second, held.shareholderPercentage[i]);
    }
  }
  return investors;
}

}  // namespace

const Venture* SellVentureSharesViewController::venture() const {
  const auto position = venturePosition(state(), businessId_);
  return position ? &state().saveAllVentureInvestments[*position] : nullptr;
}

Outcome SellVentureSharesViewController::open() {
  askForOffer(game_, businessId_);
  return {};
}

Outcome SellVentureSharesViewController::act(const Action& action) {
  if (!venture()) return {};
  if (action.id == "acceptButton") return sellStake(game_, businessId_);
  if (action.id == "declineButton") return declineOffer(game_, businessId_);
  if (action.id == "findBuyerButton" && !offerFor(game_, businessId_)) return noInterest();
  return {};
}

View SellVentureSharesViewController::view() const {
  View view{.title = "Your Shares", .theme = Theme::bank};
  const Venture* held = venture();
  if (!held) {
    view.add(EmptyHint{.icon = "rocket", .text = "You hold no part of that company."});
    return view;
  }
  view.add(Cover{.picture = markOf(*held),
                 .title = titleOf(*held),
                 .text = valuationText(*held),
                 .badge = roundName(held->currentFundingRound)});
  describeOffer(view, *held);
  describeOwners(view, *held);
  describeNews(view, *held);
  view.help = startupsHelp();
  return view;
}

void SellVentureSharesViewController::describeOffer(View& view, const Venture& held) const {
  const double worth = estimateOf(held);
  Tiles tiles{{{.label = "Your part",
                .value = std::to_string(held.percentageOwned) + "%",
                .note = withCommas(held.totalSharesOwned) + " shares"},
               {.label = "Put in", .value = abbreviatedDollars(held.investmentAmount)}}};
  if (isRunning(held)) {
    tiles.items.push_back({.label = "Worth",
                           .value = abbreviatedDollars(worth),
                           .note = gainText(gainOn(held, worth)),
                           .tone = toneOfChange(gainOn(held, worth))});
  } else if (held.hasExited == venture_exit::listed) {
    tiles.items.push_back({.label = "Went public at", .value = price(held.publicSharePrice), .note = "a share"});
  }
  view.add(std::move(tiles));
  const auto offer = offerFor(game_, businessId_);
  if (!offer) {
    view.mainAction = Button{.id = "findBuyerButton", .label = "Find a Buyer"};
    return;
  }
  const double dollars = dollarsOf(held, *offer);
  const double gain = gainOn(held, dollars);
  view.add(Figures{.items = {{.label = "The offer",
                              .value = currency(dollars),
                              .amount = dollars,
                              .dollars = true,
                              .tone = toneOfChange(gain),
                              .note = gainText(gain) + " on what you put in"}},
                   .style = Figures::Style::large});
  // No blank before the discount: kept.
  view.add(Text{.text = held.businessName +
                        " is operating as a private growth company so your stake can only be sold to other internal "
                        "shareholders until it is bought or goes public.\n\n" +
                        withCommas(held.totalSharesOwned) + " shares (" + std::to_string(held.percentageOwned) +
                        "%)\n\n" + held.businessName + " is interested at buying back your stake at a" +
                        withDecimals((1 - offer->rate) * 100, 0) + "% discount."});
  view.mainAction = Button{.id = "acceptButton", .label = "Accept", .style = Button::Style::primary};
  view.aside = Button{.id = "declineButton", .label = "Decline"};
}

void SellVentureSharesViewController::describeOwners(View& view, const Venture& held) const {
  Gauges owners{.title = "Who owns it", .style = Gauges::Style::split};
  owners.items.push_back(ownerOf("You", held.percentageOwned));
  for (auto& [name, percent] : investorsOf(held)) owners.items.push_back(ownerOf(std::move(name), percent));
  owners.items.push_back(ownerOf("Not sold", held.percentageRemaining));
  view.add(std::move(owners));
}

void SellVentureSharesViewController::describeNews(View& view, const Venture& held) const {
  Rows wire{.style = Rows::Style::wire};
  for (auto text = held.news.rbegin(); text != held.news.rend(); ++text) {
    wire.items.push_back(newsRow(held, *text));
  }
  view.add(Heading{"News"});
  if (!wire.items.empty()) view.add(std::move(wire));
  view.add(Text{.text = held.businessDescription});
}

}  // namespace backbeat
