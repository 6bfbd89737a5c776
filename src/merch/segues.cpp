#include "merch/segues.h"

#include "core/calendar.h"
#include "core/money.h"
#include "merch/news.h"
#include "merch/product_launch.h"
#include "merch/products.h"
#include "merch/screens/admin_merch_view_controller.h"
#include "merch/screens/choose_merch_song_list_view_controller.h"
#include "merch/screens/create_new_merch_view_controller.h"
#include "merch/screens/merch_plan_view_controllers.h"
#include "merch/screens/merch_view_controller.h"
#include "merch/screens/product_rows.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToMerch", "MerchViewController", push, makeScreen<MerchViewController>},
    {"goToLaunchNewMerch", "CreateNewMerchViewController", push, makeScreen<CreateNewMerchViewController>,
     enterNewProduct},
    {"goToChooseMerchSongList", "ChooseMerchSongListViewController", push,
     makeScreen<ChooseMerchSongListViewController>},
    {"goToAdminMerch", "AdminMerchViewController", push, makeScreenWithId<AdminMerchViewController>},
    {"goToMerchWebsite", "MerchWebsiteViewController", push, makeScreen<MerchWebsiteViewController>},
    {"goToMerchManufacturing", "MerchManufacturingViewController", push, makeScreen<MerchManufacturingViewController>},
    {"goToMerchLogistics", "MerchLogisticsViewController", push, makeScreen<MerchLogisticsViewController>},
};

void describeShop(const Game& game, Row& row) {
  const int64_t products = activeProducts(game.state);
  if (products == 0) return;
  row.subtitle = counted(products, "product") + " on the shelf";
  row.value = currency(netSales(game.state, reportedWeek(game.state)));
  row.note = "last week";
}

constexpr MenuLine menu[] = {
    {.tab = businessTab,
     .section = "Shop",
     .order = 250,
     .icon = "shirt",
     .title = "Merch",
     .subtitle = "Shirts, vinyl and all that bears your name",
     .segue = "goToMerch",
     .describe = describeShop},
};

/// What the artist shows of the shop.
void addToProfile(const Game& game, View& view) {
  Rows shown{.style = Rows::Style::shelf};
  for (const uint32_t i : game.state.saveAllMerchReleasedList.awake()) {
    const Merch& product = game.state.saveAllMerchReleasedList[i];
    if (product.isRetired == 0 && product.showOnSpotify >= 1) shown.items.push_back(productRow(game.state, product));
  }
  if (shown.items.empty()) return;
  view.add(Heading{"Merch"});
  view.add(std::move(shown));
}

}  // namespace

const Room merchRoom = {.name = "merch",
                        .segues = segues,
                        .menu = menu,
                        .addNeeds = addMerchNeeds,
                        .addNews = addMerchNews,
                        .addToProfile = addToProfile};

}  // namespace backbeat
