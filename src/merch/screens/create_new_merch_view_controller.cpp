#include "merch/screens/create_new_merch_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "merch/products.h"
#include "music/covers.h"

namespace backbeat {

namespace {

size_t steps(const GameState& state) { return static_cast<size_t>(greatestOrder(state) / unitsPerStep); }

/// "20,000 × $8.99".
std::string unitsAt(int64_t units, double dollars) { return withCommas(units) + " × " + price(dollars); }

Figure dollars(std::string label, double amount, Tone tone = Tone::plain) {
  return {.label = std::move(label), .value = currency(amount), .amount = amount, .dollars = true, .tone = tone};
}

Row songListRow(const GameState& state, const std::vector<int64_t>& songIds) {
  const std::vector<Song> songs = songsFor(state, songIds);
  if (songs.empty()) return wayTo("goToChooseMerchSongList", "note", "Song list", "No songs yet");
  double rating = 0;
  for (const Song& song : songs) rating += song.productionRating;
  Row row = wayTo("goToChooseMerchSongList", "note", "Song list",
                  std::to_string(songs.size()) + " of " + std::to_string(mostSongsOnMerch),
                  withDecimals(rating / static_cast<double>(songs.size()), 1));
  row.note = "mean rating";
  fanOutCovers(row, state, songIds);
  return row;
}

}  // namespace

Outcome CreateNewMerchViewController::act(const Action& action) {
  if (action.id == "launchMerchButton") return launchMerchButton();
  if (action.id == "goToChooseMerchSongList") return goTo(action.id);
  if (action.id == "name") name_ = action.value;
  if (action.id == "dice" && option_) name_ = suggestedProductName(state(), merchCatalogue[*option_], ++diceThrows_);
  if (action.id == "limited") limitedEdition_ = action.value == "1";
  if (action.id == "option") {
    if (const auto row = optionNumber(action.value, merchCatalogue.size())) return selectMerchOption(*row);
  }
  if (action.id == "quantity") {
    if (const auto step = optionNumber(action.value, steps(state()))) setQuantity(*step);
  }
  if (action.id == "price" && option_) {
    const size_t prices = pricingOptions(merchCatalogue[*option_]).size();
    if (const auto index = optionNumber(action.value, prices)) setPrice(*index);
  }
  return {};
}

Outcome CreateNewMerchViewController::selectMerchOption(size_t row) {
  Outcome outcome = backbeat::selectMerchOption(state(), merchCatalogue[row]);
  if (!outcome.done()) return outcome;
  option_ = row;
  price_ = 0;
  return outcome;
}

void CreateNewMerchViewController::setQuantity(size_t step) {
  quantity_ = (static_cast<int64_t>(step) + 1) * unitsPerStep;
}

void CreateNewMerchViewController::setPrice(size_t index) { price_ = index; }

Outcome CreateNewMerchViewController::launchMerchButton() { return launchProduct(game_, draft()); }

ProductDraft CreateNewMerchViewController::draft() const {
  ProductDraft product{.name = name_, .quantity = quantity_, .limitedEdition = limitedEdition_};
  if (!option_) return product;
  product.option = &merchCatalogue[*option_];
  product.pricing = pricingOptions(*product.option)[price_];
  product.songIds = game_.launch.merchSongs;
  return product;
}

View CreateNewMerchViewController::view() const {
  View view{.title = "New Product", .theme = Theme::merch};
  const ProductDraft product = draft();
  Choice options{.id = "option",
                 .label = "Product",
                 .selected = option_ ? static_cast<int64_t>(*option_) : -1,
                 .style = Choice::Style::pictures};
  for (const MerchOption& option : merchCatalogue) {
    options.options.push_back({.label = std::string(option.productName),
                               .picture = productPicture(option, name_.empty() ? state().myArtistsName : name_)});
  }
  view.add(std::move(options));
  TextField name{.id = "name", .label = "Name", .value = name_, .placeholder = "Name your product"};
  if (product.option) name.suggest = "dice";
  view.add(std::move(name));
  view.add(Slider{.id = "quantity",
                  .label = "QUANTITY (" + withCommas(unitsLeft(state())) + " left)",
                  .value = withCommas(quantity_),
                  .low = withCommas(unitsPerStep),
                  .high = withCommas(greatestOrder(state())),
                  .at = quantity_ / unitsPerStep - 1,
                  .count = static_cast<int64_t>(steps(state()))});
  if (product.option) {
    const std::vector<double> prices = pricingOptions(*product.option);
    view.add(Slider{.id = "price",
                    .label = "Price",
                    .value = price(product.pricing),
                    .low = price(prices.front()),
                    .high = price(prices.back()),
                    .at = static_cast<int64_t>(price_),
                    .count = static_cast<int64_t>(prices.size())});
  }
  view.add(Toggle{
      .id = "limited", .label = "Limited edition", .on = limitedEdition_, .note = "Sells faster, cannot be reordered"});
  if (product.option) {
    if (isRecord(*product.option)) view.add(Rows{{songListRow(state(), product.songIds)}});
    describeOrder(view, product);
    describeTotals(view, product);
  }
  view.mainAction = Button{.id = "launchMerchButton", .label = "Launch Product", .style = Button::Style::primary};
  if (product.option) view.mainAction->price = launchCost(product);
  view.help =
      Help{.title = "New Product",
           .text =
               "LIMITED EDITIONS\nHave better sell through rates and higher prices.\n\nSETUP FEE\nOne time fee to "
               "launch a product which includes R&D, graphics, and material setup. Once all inventory is sold, the "
               "setup fee is excluded when you purchase additional inventory for the same product.\n\nSONG "
               "LISTS\nCassettes and vinyls allow you to choose your tracklist. Higher production ratings will lead "
               "to better sales.\n\nSELL THROUGH RATES\n# of sales are based on your virality trait, monthly "
               "listeners, limited editions, pricing and production ratings (vinyl + cassette).\n\nDYNAMIC "
               "PRICING\nIf subscribed, it will automatically adjust the price of products sold if there is more "
               "demand than units remaining."};
  return view;
}

void CreateNewMerchViewController::describeOrder(View& view, const ProductDraft& product) const {
  const int64_t weeks = weeksToShelf(state(), product);
  view.add(Tiles{{{.icon = "cash", .label = "A unit costs", .value = price(product.option->unitCost)},
                  {.icon = "calendar", .label = "On sale", .value = "in " + counted(weeks, "week")}}});
  const double gross = static_cast<double>(product.quantity) * product.pricing;
  const double earnings = earningsOf(state(), product);
  const double profit = earnings - launchCost(product).dollars;
  const std::string fee = withDecimals(state().merchWebsiteTransactionFee, 1) + "%";
  view.add(Figures{.title = "If all of it sells",
                   .items = {dollars(unitsAt(product.quantity, product.pricing), gross),
                             dollars("Website fee, " + fee, earnings - gross),
                             dollars(unitsAt(product.quantity, product.option->unitCost),
                                     -static_cast<double>(product.quantity) * product.option->unitCost),
                             dollars("Setup fee", -product.option->startupCost)},
                   .total = dollars("Left for you", profit, toneOfChange(profit))});
}

void CreateNewMerchViewController::describeTotals(View& view, const ProductDraft& product) const {
  const double cost = launchCost(product).dollars;
  const double setup = product.option->startupCost;
  view.totals = {{.label = currency(cost - setup) + " + " + currency(setup) + " setup", .value = currency(cost)},
                 {.label = "if all sell", .value = currency(earningsOf(state(), product)), .tone = Tone::good},
                 {.label = "a week", .value = std::to_string(product.option->energyCost), .energy = true}};
}

}  // namespace backbeat
