#include "shell/screens/packs_view_controller.h"

#include <algorithm>

#include "core/assisted.h"
#include "core/view_words.h"
#include "shell/packs.h"

namespace backbeat {

namespace {

enum class Shelf { energy, cash, forGood };

Shelf shelfOf(const Pack& pack) {
  if (pack.permanentEnergy > 0) return Shelf::forGood;
  return pack.gift.energy > 0 ? Shelf::energy : Shelf::cash;
}

struct ShelfWords {
  Shelf shelf;
  const char* heading;
  const char* glyph;
  const char* about;
};
constexpr ShelfWords shelves[] = {
    {Shelf::energy, "Energy", "bolt", "At once, even above your maximum"},
    {Shelf::cash, "Cash", "cash", "At once, into your purse"},
    {Shelf::forGood, "For Good", "spark", "This week and every other, in every life"},
};

}  // namespace

Outcome PacksViewController::act(const Action& action) {
  if (action.verb() == "buy") return buyPack(game_, action.argument());
  if (action.verb() != "pack" || !packNamed(action.argument())) return {};
  if (state().assisted >= 1) return buyPack(game_, action.argument());
  return ask<"🎁 Take a Pack? 🎁">(
      "\nFrom then on this career is marked as assisted: in its profile, in its statistics and in its records. An heir "
      "inherits the mark.",
      "Close", {"Take It", {"buy:" + std::string(action.argument()), ""}});
}

Row PacksViewController::rowOf(const Pack& pack, const PackOffer& offer) const {
  const auto shelf = std::find_if(std::begin(shelves), std::end(shelves),
                                  [&](const ShelfWords& words) { return words.shelf == shelfOf(pack); });
  Row row{.picture = icon(shelf->glyph),
          .title = std::string(pack.title),
          .subtitle = shelf->about,
          .value = offer.price,
          .id = "pack:" + offer.product};
  if (isAwaited(game_, offer.product)) {
    row.note = "on its way";
  } else if (offer.free && takenThisWeek(state(), offer.product)) {
    row.value.clear();
    row.note = "taken this week";
    row.tone = Tone::locked;
  }
  return row;
}

View PacksViewController::view() const {
  View view{.title = "Packs", .subtitle = "Energy and cash, without the work"};
  const std::vector<PackOffer> offers = game_.platform.packOffers();
  if (offers.empty()) {
    view.add(EmptyHint{.icon = "store", .text = "There is no shop on this device. Everything here can be earned."});
    return view;
  }
  if (std::all_of(offers.begin(), offers.end(), [](const PackOffer& offer) { return offer.free; })) {
    view.add(Text{.text = "Free on this device: one of each a game week.", .style = Text::Style::lead});
  }
  addAssistedMark(view, state());
  for (const ShelfWords& shelf : shelves) {
    Rows rows;
    for (const PackOffer& offer : offers) {
      const Pack* pack = packNamed(offer.product);
      if (pack && shelfOf(*pack) == shelf.shelf) rows.items.push_back(rowOf(*pack, offer));
    }
    if (rows.items.empty()) continue;
    view.add(Heading{shelf.heading});
    view.add(std::move(rows));
  }
  view.help = Help{.title = "What a pack does",
                   .text =
                       "A pack helps and is seen: a career that has taken one carries the mark “assisted” beside "
                       "what it has reached.\n\nEnergy for good outlives every artist. While it does, so does the "
                       "mark; otherwise it ends with a restart."};
  return view;
}

}  // namespace backbeat
