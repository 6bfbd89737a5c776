#include "turn/figures.h"
#include "core/money.h"
#include "merch/catalogue.h"
#include "merch/products.h"

namespace backbeat {

namespace {

Merch made(const GameState& state, OwnValues& own, int64_t merchId, const char* name, int64_t optionId) {
  Merch product = own.record<Merch>();
  product.merchId = merchId;
  const MerchOption& option = merchCatalogue[static_cast<size_t>(optionId - 1)];
  product.name = name;
  product.merchOptionId = optionId;
  product.category = option.category;
  product.subCategory = option.productName;
  product.imageString = option.imageString;
  product.pricePerUnit = static_cast<double>(own.number()) / 100;
  product.totalCostPerUnit = static_cast<double>(own.number()) / 700;
  product.transactionFees = static_cast<double>(optionId) / 1'000;
  product.startingInventory = own.number() * 9;
  product.yearLaunched = state.yearNumber - optionId;
  product.weekLaunched = state.weekNumberForTracking - 90 - optionId;
  product.weeksToManufacture = 2;
  product.weeksToShip = 1;
  // Nobody wants it, so that the coming week sells nothing.
  product.popularity = product.isRetired = product.limitedEdition = product.showOnSpotify = 0;
  return product;
}

Song onRecord(const char* title, double rating) {
  Song song;
  song.title = title;
  song.productionRating = rating;
  return song;
}

void furnish(GameState& state, OwnValues& own) {
  state.merchWebsiteTransactionFee = 2.83;
  state.weeksToManufactureMerch = 2;
  state.weeksToShipMerch = 1;
  state.maxMerchProducts = 1'873;
  state.maxMerchCapacity = 417'353;
  Merch hoody = made(state, own, 41, "Lantern Hoody", 4);
  hoody.showOnSpotify = hoody.limitedEdition = 1;
  Merch record = made(state, own, 42, "Boats on Vinyl", 2);
  record.weekLaunched = state.weekNumberForTracking + 1;  // three weeks to make and to ship
  record.songList = {onRecord("Side A", 72.5), onRecord("Side B", 61.25)};
  Merch shirt = made(state, own, 43, "Static Tee", 3);
  shirt.remainingInventory = 0;
  Merch mug = made(state, own, 44, "Old Mug", 14);
  mug.isRetired = 1;
  mug.remainingInventory = 0;
  for (const Merch& product : {hoody, record, shirt, mug}) state.saveAllMerchReleasedList.append(product);
}

const Merch& productNamed(const GameState& state, std::string_view name) {
  const auto& products = state.saveAllMerchReleasedList;
  return products[products.find([&](const Merch& product) { return product.name == name; })];
}

std::string wayTo(const Merch& product) { return "goToAdminMerch " + std::to_string(product.merchId); }

std::string unitsForSale(const Merch& product) { return withCommas(product.remainingInventory) + " units for sale"; }

Standings shelfFigures(const GameState& state, const char* name, const std::string& standing) {
  const Merch& product = productNamed(state, name);
  const std::string where = name;
  return {{where, price(product.pricePerUnit), wayTo(product)},
          {where + ": subtitle", standing},
          {where + ": note", "of " + withCommas(product.startingInventory)},
          {where + ": share", shareText(static_cast<double>(product.remainingInventory) /
                                        static_cast<double>(product.startingInventory))}};
}

Standings shopFigures(Game& twin) {
  const GameState& state = twin.state;
  const Merch& mug = productNamed(state, "Old Mug");
  double sales = 0;
  int64_t units = 0;
  for (const Merch& product : state.saveAllMerchReleasedList) {
    sales += product.totalRevenue;
    units += product.remainingInventory;
  }
  return Standings{
             {"net last week", currency(merchOf(state))},
             {"product lines", "3 of 1873"},
             {"of 417K stored", abbreviated(static_cast<double>(units))},
             {"Lantern Hoody: badge", "Limited edition"},
             {"Free of charge", "", "goToMerchWebsite"},
             {"Free of charge: note", "2.8% Transaction Fee + Onsite Terminals"},
             {"Free of charge", "", "goToMerchManufacturing"},
             {"Free of charge: note", "14 days per 10,000 units"},
             {"Free of charge", "", "goToMerchLogistics"},
             {"Free of charge: note", "7 days"},
             {"text", "Together $0 a week."},
             {"Old Mug", withCommas(mug.totalUnitsSold), wayTo(mug)},
             {"Old Mug: subtitle", "Mug · " + std::to_string(mug.yearLaunched)},
             {"text", "Mara Voss has released 4 signature product(s) including 1 limited edition(s). With sales of " +
                          currency(sales) + " your merchandise has become an exciting revenue oportunity."}} +
         shelfFigures(state, "Static Tee", "0 units for sale • Sold out (tap to reorder)") +
         shelfFigures(state, "Boats on Vinyl",
                      unitsForSale(productNamed(state, "Boats on Vinyl")) + " • Manufacturing (5 weeks)") +
         shelfFigures(state, "Lantern Hoody", unitsForSale(productNamed(state, "Lantern Hoody")));
}

int64_t unitsFree(const GameState& state) { return 417'353 - unitsStored(state); }

/// The blank form, as far as it does not depend on the product.
Standings quantityFigures(const GameState& state, const std::string& chosen) {
  const std::string where = "QUANTITY (" + withCommas(unitsFree(state)) + " left)";
  return {
      {where, chosen}, {where + ": low", "1,000"}, {where + ": high", withCommas(unitsFree(state) / 1'000 * 1'000)}};
}

Standings newHoodyFigures(Game& twin) {
  constexpr double sales = 25'000 * 13.99;
  constexpr double units = 25'000 * 8.99;
  const double earned = sales * (1 - 2.83 / 100);
  return quantityFigures(twin.state, "25,000") +
         Standings{{"Price", "$13.99"},
                   {"Price: low", "$9.99"},
                   {"Price: high", "$44.99"},
                   {"A unit costs", "$8.99"},
                   {"On sale", "in 6 weeks"},
                   {"25,000 × $13.99", currency(sales)},
                   {"Website fee, 2.8%", currency(earned - sales)},
                   {"25,000 × $8.99", currency(-units)},
                   {"Setup fee", "-$90,000"},
                   {"Left for you", currency(earned - units - 90'000)},
                   {currency(units) + " + $90,000 setup", currency(units + 90'000)},
                   {"if all sell", currency(earned)},
                   {"a week", "2"},
                   {"Launch Product: price", currency(units + 90'000)}};
}

Standings newTapeFigures(Game& twin) {
  const GameState& state = twin.state;
  const double rating =
      (songTitled(state, "Paper Boats").productionRating + songTitled(state, "Low Tide").productionRating) / 2;
  const double earned = 1'000 * 8.99 * (1 - 2.83 / 100);
  return quantityFigures(state, "1,000") + Standings{{"Price", "$8.99"},
                                                     {"Price: low", "$8.99"},
                                                     {"Price: high", "$39.99"},
                                                     {"Song list", withDecimals(rating, 1), "goToChooseMerchSongList"},
                                                     {"Song list: subtitle", "2 of 15"},
                                                     {"A unit costs", "$7.99"},
                                                     {"On sale", "in 4 weeks"},
                                                     {"1,000 × $8.99", "$8,990"},
                                                     {"Website fee, 2.8%", currency(earned - 8'990)},
                                                     {"1,000 × $7.99", "-$7,990"},
                                                     {"Setup fee", "-$10,000"},
                                                     {"Left for you", currency(earned - 17'990)},
                                                     {"$7,990 + $10,000 setup", "$17,990"},
                                                     {"if all sell", currency(earned)},
                                                     {"a week", "1"},
                                                     {"Launch Product: price", "$17,990"}};
}

Standings songListFigures(Game& twin) {
  Standings standings = {{"subtitle", "2 of 15 songs"}};
  for (const char* title : {"Paper Boats", "Glass Harbour", "Low Tide", "Fever Line", "Tin Roof", "Small Hours"}) {
    standings.push_back({title, withDecimals(songTitled(twin.state, title).productionRating, 1)});
  }
  return standings;
}

/// What every product's page tells.
Standings productFigures(const Merch& product, const std::string& standing) {
  const double net = product.totalRevenue - product.totalCost;
  return {{"cover: text", product.subCategory + "\n" + standing},
          {"Price", price(product.pricePerUnit)},
          {"A unit costs", price(product.totalCostPerUnit)},
          {"Website fee", withDecimals(product.transactionFees * 100, 1) + "%"},
          {"Units sold", withCommas(product.totalUnitsSold)},
          {"Units sold: note", "Ordered again " + counted(product.reorderCount, "time")},
          {"text", "A whole run went in " + counted(product.minutesToSellOut, "minute") + "."},
          {"Sales", currency(product.totalRevenue)},
          {"Orders and fees", currency(-product.totalCost)},
          {"Left for you", currency(net)}};
}

Standings advice(const Merch& product) {
  return {{"text (2)", "It costs " + std::to_string(product.energyCost) +
                           " energy a week until you retire it, also when it is sold out. Whoever asks to restock or "
                           "to retire pays the energy, whatever the answer then is."},
          {"Retire: price", "50 energy"}};
}

Standings hoodyFigures(Game& twin) {
  const Merch& hoody = productNamed(twin.state, "Lantern Hoody");
  return productFigures(hoody, unitsForSale(hoody)) + advice(hoody) +
         Standings{{"cover: badge", "Limited edition"}, {"Units sold: points", pointsText({1'205, 1'109})}};
}

void sellHoodies(Game& game) {
  for (const int64_t units : {1'205, 1'109}) {
    MerchWeeklySales row;
    row.merchId = productNamed(game.state, "Lantern Hoody").merchId;
    row.unitsSold = units;
    game.state.saveAllMerchWeeklySales.append(row);
  }
}

Standings recordFigures(Game& twin) {
  const Merch& record = productNamed(twin.state, "Boats on Vinyl");
  return productFigures(record, unitsForSale(record) + " • Manufacturing (5 weeks)") + advice(record) +
         Standings{{"Side A", "72.5"}, {"Side B", "61.2"}};
}

Standings shirtFigures(Game& twin) {
  const Merch& shirt = productNamed(twin.state, "Static Tee");
  const double order = static_cast<double>(shirt.startingInventory) * shirt.totalCostPerUnit;
  const std::string button = "Restock " + withCommas(shirt.startingInventory);
  return productFigures(shirt, "0 units for sale • Sold out (tap to reorder)") + advice(shirt) +
         Standings{{"button (2)", button}, {button + ": price", "25 energy " + currency(order)}};
}

Standings mugFigures(Game& twin) { return productFigures(productNamed(twin.state, "Old Mug"), "Retired"); }

Standings websiteFigures(Game&) {
  return {{"Plans: Standard: value", "$99 a week"}, {"Plans: Standard: Transaction Fee", "2.5%"},
          {"Plans: Touring: value", "$249 a week"}, {"Plans: Touring: Transaction Fee + Onsite Terminals", "2.9%"},
          {"Plans: Premium: value", "$499 a week"}, {"Plans: Premium: Transaction Fee + Dynamic Pricing", "3.5%"}};
}

Standings makerFigures(Game&) {
  return {{"Plans: Bronze: value", "$99 a week"},         {"Plans: Bronze: product lines", "3"},
          {"Plans: Bronze: per 10,000 units", "21 days"}, {"Plans: Silver: value", "$189 a week"},
          {"Plans: Silver: product lines", "7"},          {"Plans: Silver: per 10,000 units", "14 days"},
          {"Plans: Gold: value", "$349 a week"},          {"Plans: Gold: product lines", "12"},
          {"Plans: Gold: per 10,000 units", "7 days"}};
}

Standings warehouseFigures(Game&) {
  return {{"Plans: Small: value", "$499 a week"},       {"Plans: Small: units in store", "25,000"},
          {"Plans: Small: to ship", "14 days"},         {"Plans: Medium: value", "$999 a week"},
          {"Plans: Medium: units in store", "125,000"}, {"Plans: Medium: to ship", "14 days"},
          {"Plans: Large: value", "$1,999 a week"},     {"Plans: Large: units in store", "1,000,000"},
          {"Plans: Large: to ship", "7 days"}};
}

void pickSongs(Game& game) {
  for (const char* title : {"Paper Boats", "Low Tide"}) {
    game.launch.merchSongs.push_back(songTitled(game.state, title).songId);
  }
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToMerch", .figures = shopFigures},
      {.segue = "goToLaunchNewMerch",
       .figures = newHoodyFigures,
       .presses = {{"option", "3"}, {"quantity", "24"}, {"price", "4"}}},
      {.segue = "goToLaunchNewMerch", .figures = newTapeFigures, .before = pickSongs, .presses = {{"option", "0"}}},
      {.segue = "goToChooseMerchSongList", .figures = songListFigures, .before = pickSongs},
      {.segue = "goToAdminMerch", .argument = "41", .figures = hoodyFigures, .before = sellHoodies},
      {.segue = "goToAdminMerch", .argument = "42", .figures = recordFigures},
      {.segue = "goToAdminMerch", .argument = "43", .figures = shirtFigures},
      {.segue = "goToAdminMerch", .argument = "44", .figures = mugFigures},
      {.segue = "goToMerchWebsite", .figures = websiteFigures},
      {.segue = "goToMerchManufacturing", .figures = makerFigures},
      {.segue = "goToMerchLogistics", .figures = warehouseFigures},
  };
}

const FiguresOf shop{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
