#include "career/screens/my_studio_view_controller.h"

#include "career/studio.h"
#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr int64_t highestRating = highestStudioLevel * static_cast<int64_t>(studioParts.size());

Row partRow(const GameState& state, const StudioPart& part) {
  const int64_t level = state.*part.level;
  Row row{.picture = icon(std::string(part.icon)),
          .title = std::string(part.title),
          .subtitle = "Level " + std::to_string(level) + " of " + std::to_string(highestStudioLevel),
          .share = shareOf(level, highestStudioLevel),
          .id = "upgradeStudio:" + std::string(part.key)};
  if (level >= highestStudioLevel) {
    row.badge = "MAX";
    row.tone = Tone::good;
    return row;
  }
  row.price = upgradeCost(state, part);
  return row;
}

}  // namespace

Outcome MyStudioViewController::act(const Action& action) {
  if (action.verb() != "upgradeStudio") return {};
  const StudioPart* part = studioPartNamed(action.argument());
  return part ? upgradeStudio(game_, *part) : Outcome{};
}

View MyStudioViewController::view() const {
  View view{.title = "My Studio"};
  const int64_t rating = studioRating(state());
  view.add(Meter{.label = "Studio rating",
                 .value = std::to_string(rating) + " / " + std::to_string(highestRating),
                 .share = shareOf(rating, highestRating)});
  view.add(Text{.text = "Your studio has a total rating of " + std::to_string(rating) +
                        " and can be rented out daily for up to " +
                        currency(static_cast<double>(studioRentalCeiling(rating))) + "."});
  view.add(caption("This studio has a max capacity of " + std::to_string(state().studioCapacity) + " artists."));
  view.add(Heading{"Equipment"});
  Rows rows;
  for (const StudioPart& part : studioParts) rows.items.push_back(partRow(state(), part));
  view.add(std::move(rows));
  view.help =
      Help{.title = "Your own studio",
           .text =
               "The rating is what your studio gives to a song that you record in it, for free. Each level adds one "
               "point, whatever the part, and costs more than the one before.\n\nA better studio also earns more "
               "when it is rented out."};
  return view;
}

}  // namespace backbeat
