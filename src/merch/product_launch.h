// A product from the drawing board to the shelf.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "merch/catalogue.h"

namespace backbeat {

inline constexpr int64_t unitsPerStep = 1'000;
inline constexpr size_t mostSongsOnMerch = 15;

/// A product as chosen so far.
struct ProductDraft {
  const MerchOption* option = nullptr;
  std::string name = {};
  int64_t quantity = unitsPerStep;
  double pricing = 0;  ///< dollars a unit
  bool limitedEdition = false;
  std::vector<int64_t> songIds = {};  ///< of a record, in the order in which they were picked
};

/// Who may begin a product: refused without website, maker or warehouse, and when no product line is free.
Outcome enterNewProduct(Game& game);

/// Whether the artist may make this: refused below the listeners that it asks for.
Outcome selectMerchOption(const GameState& state, const MerchOption& option);

/// What the warehouse can still take, in units; below 0 when it holds too much.
int64_t unitsLeft(const GameState& state);
/// The greatest order that can be chosen: what fits, by whole steps, and one step at least.
int64_t greatestOrder(const GameState& state);

/// The released songs among those, in that order.
std::vector<Song> songsFor(const GameState& state, const std::vector<int64_t>& songIds);

/// The order: its units and the setup fee. Nothing while no option is chosen.
Price launchCost(const ProductDraft& draft);
/// What it brings when all of it sells at its price, the website's fee taken off. The week's account counts it once
/// more: see merch/merch_sales.h.
double earningsOf(const GameState& state, const ProductDraft& draft);
/// Week ends until the first one that sells it.
int64_t weeksToShelf(const GameState& state, const ProductDraft& draft);

/// Draws how well it goes down: more for virality, a limited edition, a modest price and, of a record, good songs.
/// Pays the order and puts the product on the shelf, where it costs energy each week. Refused, in this order, without
/// an option, the cash, a name, room in the warehouse, and of a record without songs.
Outcome launchProduct(Game& game, const ProductDraft& draft);

}  // namespace backbeat
