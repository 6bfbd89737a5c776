// Homes and land: buying them, owning them, selling them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "core/view.h"
#include "wealth/property_catalogue.h"

namespace backbeat {

/// Position of the home in `saveAllInvestmentPropertyList`; nothing when it is not owned.
std::optional<size_t> holdingPosition(const GameState& state, int64_t propertyId);

/// The homes on the market: those that the artist does not own.
std::vector<const Property*> listedProperties(const GameState& state);

/// The code of the ledger under which a home's tax stands.
int64_t propertyTaxCode(int64_t propertyId);

/// What a sale leaves of the estimate, in dollars, after the fee.
double proceedsOf(const GameState& state, const InvestmentProperty& home);

Price costOf(const Property& property);
inline constexpr Price sellPropertyCost = {.energy = 75};

/// Asks before a home is bought, with its weekly tax; the answer sends `confirmed`. Refused without the energy, then
/// without the cash.
Outcome askToBuyProperty(const GameState& state, const Property& property, Action confirmed);
/// Buys it at today's index; its tax joins the ledger. Refused as above; does nothing for a home already owned.
Outcome buyProperty(Game& game, const Property& property);

/// Asks before a home is sold, with what is left after the fee. Refused without the energy. Nothing when it is not
/// owned; the same for the sale itself.
Outcome askToSellProperty(const GameState& state, int64_t propertyId, Action confirmed);
/// Sells it at today's estimate less the fee, and ends its tax.
Outcome sellProperty(Game& game, int64_t propertyId);

/// The market index where it is known: of each year the last that a home still owned was bought at, then today's.
struct KnownIndex {
  int64_t year = 0;
  double index = 0;
};
std::vector<KnownIndex> knownIndexes(const GameState& state);

/// "Index: 1.072"
std::string indexText(double index);
/// "0.26", "266,000": without needless zeros.
std::string acresText(double acres);
/// A home's picture by its id; a place of its name's own for one that no table knows.
Picture propertyPicture(int64_t propertyId, const std::string& title);

}  // namespace backbeat
