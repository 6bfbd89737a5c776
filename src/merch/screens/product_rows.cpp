#include "merch/screens/product_rows.h"

#include <string_view>

#include "core/money.h"
#include "core/view_words.h"
#include "merch/catalogue.h"
#include "merch/products.h"

namespace backbeat {

namespace {

Tone toneOf(const GameState& state, const Merch& product) {
  if (canRestock(product)) return Tone::warning;
  if (product.remainingInventory < 1) return Tone::locked;
  return weeksUntilOnSale(state, product) > 0 ? Tone::fair : Tone::plain;
}

/// On the shelf bar and foot tell the units, so that only what else there is to say has to be read.
std::string shelfStanding(const GameState& state, const Merch& product) {
  const std::string standing = productStanding(state, product);
  constexpr std::string_view separator = " • ";
  const size_t end = standing.find(separator);
  return end == std::string::npos ? standing : standing.substr(end + separator.size());
}

}  // namespace

Row productRow(const GameState& state, const Merch& product) {
  return {.picture = productPicture(product),
          .title = product.name,
          .subtitle = shelfStanding(state, product),
          .value = price(product.pricePerUnit),
          .note = "of " + withCommas(product.startingInventory),
          .tone = toneOf(state, product),
          .badge = product.limitedEdition >= 1 ? "Limited edition" : "",
          .share = shareOf(product.remainingInventory, product.startingInventory),
          .opens = true,
          .id = "goToAdminMerch:" + std::to_string(product.merchId)};
}

}  // namespace backbeat
