#include "merch/screens/product_rows.h"

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

}  // namespace

Row productRow(const GameState& state, const Merch& product) {
  return {.picture = productPicture(product),
          .title = product.name,
          .subtitle = productStanding(state, product),
          .value = price(product.pricePerUnit),
          .note = "of " + withCommas(product.startingInventory),
          .tone = toneOf(state, product),
          .badge = product.limitedEdition >= 1 ? "Limited edition" : "",
          .share = shareOf(product.remainingInventory, product.startingInventory),
          .opens = true,
          .id = "goToAdminMerch:" + std::to_string(product.merchId)};
}

}  // namespace backbeat
