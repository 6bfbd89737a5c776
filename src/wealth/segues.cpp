#include "wealth/segues.h"

#include <algorithm>

#include "core/money.h"
#include "wealth/net_assets.h"
#include "wealth/news.h"
#include "wealth/rich_list.h"
#include "wealth/screens/forbes_detail_view_controller.h"
#include "wealth/screens/investment_option_view_controller.h"
#include "wealth/screens/property_listing_view_controller.h"
#include "wealth/screens/property_portfolio_view_controller.h"
#include "wealth/screens/sell_venture_shares_view_controller.h"
#include "wealth/screens/transportation_options_view_controller.h"
#include "wealth/screens/venture_portfolio_view_controller.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToPropertyListing", "PropertyListingViewController", push, makeScreen<PropertyListingViewController>},
    {"goToPropertyPortfolio", "PropertyPortfolioViewController", push,
     makeScreenWithId<PropertyPortfolioViewController>},
    {"goToTransportationOptions", "TransportationOptionsViewController", push,
     makeScreen<TransportationOptionsViewController>},
    {"goToVenturePortfolio", "VenturePortfolioViewController", push, makeScreen<VenturePortfolioViewController>},
    {"goToSellVentureShares", "SellVentureSharesViewController", push,
     makeScreenWithId<SellVentureSharesViewController>},
    {"goToVentureDeal", "InvestmentOptionViewController", modal, makeScreen<InvestmentOptionViewController>},
    {"goToForbesDetail", "ForbesDetailViewController", push, makeScreen<ForbesDetailViewController>},
};

bool ownsHomes(const Game& game) { return !game.state.saveAllInvestmentPropertyList.empty(); }

void describePortfolio(const Game& game, Row& row) {
  row.subtitle = counted(static_cast<int64_t>(game.state.saveAllInvestmentPropertyList.size()), "holding");
  row.value = currency(propertiesValue(game.state));
}

void describeGarage(const Game& game, Row& row) {
  const auto& owned = game.state.saveAllTransportationOwnedList;
  if (owned.empty()) return;
  row.subtitle = owned.size() == 1 ? owned[0].title : std::to_string(owned.size()) + " in the garage";
  row.value = currency(transportationValue(game.state));
}

constexpr MenuLine motors(TabNumber tab, std::string_view section, int64_t order, std::string_view title) {
  return {.tab = tab,
          .section = section,
          .order = order,
          .icon = "car",
          .title = title,
          .subtitle = "Cars, boats and planes of your own",
          .segue = "goToTransportationOptions",
          .describe = describeGarage};
}

void describeStartups(const Game& game, Row& row) {
  const auto& ventures = game.state.saveAllVentureInvestments;
  const auto running = std::count_if(ventures.begin(), ventures.end(), isRunning);
  if (running == 0) return;
  row.subtitle = std::to_string(running) + " running";
  row.value = currency(venturesValue(game.state));
}

void describeRichList(const Game& game, Row& row) { row.value = worldRank(netAssets(game.state)); }

constexpr MenuLine menu[] = {
    motors(lifeTab, "Lifestyle", 360, "Motors"),
    motors(businessTab, "Wealth", 330, "Motors"),
    {.tab = businessTab,
     .section = "Wealth",
     .order = 310,
     .icon = "house",
     .title = "International Realty",
     .subtitle = "Homes and land around the world",
     .segue = "goToPropertyListing"},
    {.tab = businessTab,
     .section = "Wealth",
     .order = 320,
     .icon = "key",
     .title = "Portfolio",
     .segue = "goToPropertyPortfolio",
     .shown = ownsHomes,
     .describe = describePortfolio},
    {.tab = businessTab,
     .section = "Wealth",
     .order = 340,
     .icon = "rocket",
     .title = "Startups",
     .subtitle = "Parts of young companies",
     .segue = "goToVenturePortfolio",
     .describe = describeStartups},
    {.tab = businessTab,
     .section = "Wealth",
     .order = 390,
     .icon = "podium",
     .title = "Farbes",
     .subtitle = "The list of the rich",
     .segue = "goToForbesDetail",
     .describe = describeRichList},
};

}  // namespace

const Room wealthRoom = {
    .name = "wealth", .segues = segues, .menu = menu, .addNeeds = addWealthNeeds, .addNews = addWealthNews};

}  // namespace backbeat
