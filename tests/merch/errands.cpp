#include "play/errands.h"

namespace backbeat {
namespace {

/// From the Business tab to a place of the shop.
std::vector<Wish> shop(std::initializer_list<Wish> further) {
  std::vector<Wish> wishes = {{"Business"}, {"goToMerch"}};
  wishes.insert(wishes.end(), further);
  return wishes;
}

std::vector<Wish> operator+(std::vector<Wish> first, const std::vector<Wish>& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

const std::vector<Wish> website = shop({{"goToMerchWebsite"}, {"plan", "1"}});
const std::vector<Wish> maker = shop({{"goToMerchManufacturing"}, {"plan", "0"}});
const std::vector<Wish> warehouse = shop({{"goToMerchLogistics"}, {"plan", "0"}});
const std::vector<Wish> start = shop({{"goToLaunchNewMerch"}});

const RoomErrands errands({
    {"sell without a website", {"rich", "new"}, start + std::vector<Wish>{{"👩💻 Website Needed 🧑💻"}}},
    {"sell without a maker", {"rich"}, website + start + std::vector<Wish>{{"👷 Manufacturing Needed 👷"}}},
    {"sell without a warehouse", {"rich"}, website + maker + start + std::vector<Wish>{{"👷 Warehouse Needed 👷"}}},
    {"sell to nobody",
     {"new"},
     website + maker + warehouse + start + std::vector<Wish>{{"option", "2"}, {"🎧 More Listeners Needed 🎧"}}},
    {"open a shop and launch a shirt",
     {"rich", "mid-career"},
     website + maker + warehouse + start +
         std::vector<Wish>{
             {"option", "2"}, {"dice"}, {"quantity", "4"}, {"price"}, {"limited"}, {"launchMerchButton"}}},
    {"cancel a plan that nothing needs", {"rich"}, website + std::vector<Wish>{{"cancelButton"}}},
    {"launch a record",
     {"shop"},
     start + std::vector<Wish>{{"option", "1"},
                               {"name"},
                               {"launchMerchButton"},
                               {"🎶 Choose Songs 🎶"},
                               {"goToChooseMerchSongList"},
                               {"song:12"},
                               {"doneButton"},
                               {"launchMerchButton"}}},
    {"put too many songs on a record",
     {"shop"},
     start + std::vector<Wish>{{"option", "0"},
                               {"goToChooseMerchSongList"},
                               {"song:12"},
                               {"song:15"},
                               {"song:18"},
                               {"song:21"},
                               {"song:24"},
                               {"song:27"},
                               {"song:30"},
                               {"song:33"},
                               {"song:36"},
                               {"song:39"},
                               {"song:42"},
                               {"song:45"},
                               {"song:48"},
                               {"song:51"},
                               {"song:54"},
                               {"song:57"},
                               {"⚡️ Song Limit Reached ⚡️"}}},
    {"launch nothing", {"shop"}, start + std::vector<Wish>{{"launchMerchButton"}, {"👚 Choose Merch 👕"}}},
    {"launch what has no name",
     {"shop"},
     start + std::vector<Wish>{{"option", "13"}, {"name", " "}, {"launchMerchButton"}, {"🔥 Name Your Product 🔥"}}},
    {"launch what is too dear",
     {"shop"},
     start + std::vector<Wish>{{"option", "18"}, {"quantity"}, {"launchMerchButton"}, {"💰 Not Enough Cash 💰"}}},
    {"launch on a full shelf", {"full shop"}, start + std::vector<Wish>{{"👷 Product Lines Needed 👷"}}},
    {"launch into a full warehouse",
     {"full shop"},
     shop({{"goToMerchManufacturing"}, {"plan", "1"}}) + start +
         std::vector<Wish>{{"option", "13"}, {"name"}, {"launchMerchButton"}, {"👚 Not Enough Capacity 👕"}}},
    {"have too much for a smaller plan",
     {"shop"},
     shop({{"goToMerchManufacturing"}, {"plan", "1"}, {"❌ Too Many Products ❌"}}) +
         shop({{"goToMerchLogistics"}, {"plan", "0"}, {"❌ Too Much Inventory ❌"}, {"cancelButton"}})},
    {"order more", {"shop"}, shop({{"Static Tee"}, {"restockButton"}, {"Yes, Restock"}})},
    {"order more without the money",
     {"empty shop"},
     shop({{"Grey Tee"}, {"restockButton"}, {"Yes, Restock"}, {"💰 Not Enough Cash 💰"}})},
    {"be too tired to order more",
     {"empty shop"},
     shop({{"Grey Tee"}, {"restockButton"}, {"No"}, {"restockButton"}, {"⚡️ Not Enough Energy ⚡️"}})},
    {"retire what is left of a product", {"shop"}, shop({{"Velvet Bag"}, {"retireButton"}, {"Yes, Retire"}})},
    {"retire what has sold out", {"shop"}, shop({{"Glass Harbour Sweater"}, {"retireButton"}, {"Yes, Retire"}})},
    {"be too tired to retire",
     {"empty shop"},
     shop({{"Grey Tee"}, {"retireButton"}, {"⚡️ Not Enough Energy ⚡️"}})},
    {"show a product to the listeners",
     {"shop"},
     shop({{"Tour Backpack"}, {"showOnSpotify"}}) +
         std::vector<Wish>{{"Home"}, {"goToArtistProfile"}, {"Tour Backpack"}}},
    {"see a product that has sold out", {"shop"}, {{"Home"}, {"goToAdminMerch"}}},
});

}  // namespace
}  // namespace backbeat
