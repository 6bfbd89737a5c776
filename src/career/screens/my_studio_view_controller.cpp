#include "career/screens/my_studio_view_controller.h"

#include <algorithm>

#include "career/studio.h"
#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr int64_t highestRating = highestStudioLevel * static_cast<int64_t>(studioParts.size());

Row partRow(const GameState& state, const StudioPart& part) {
  Row row;
  const int64_t level = state.*part.level;
  row.id = "upgradeStudio:" + std::string(part.key);
  row.picture = icon(std::string(part.icon));
  row.title = part.title;
  row.share = shareOf(level, highestStudioLevel);
  row.value = std::to_string(level);
  row.note = "of " + std::to_string(highestStudioLevel);
  if (level >= highestStudioLevel) {
    row.subtitle = "Finished";
    row.badge = "MAX";
    row.tone = Tone::good;
    return row;
  }
  row.subtitle = "+1 studio rating";
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
  View view;
  view.title = "My Studio";
  const int64_t rating = studioRating(state());
  view.add(Meter{"Studio rating", std::to_string(rating) + " / " + std::to_string(highestRating),
                 shareOf(rating, highestRating), Tone::plain});
  view.add(Text{"Your studio has a total rating of " + std::to_string(rating) +
                    " and can be rented out daily for up to " +
                    currency(static_cast<double>(studioRentalCeiling(rating))) + ".",
                Tone::plain, Text::Style::body});
  view.add(Text{"This studio has a max capacity of " + std::to_string(state().studioCapacity) + " artists.",
                Tone::plain, Text::Style::caption});
  view.add(Heading{"Equipment", {}});
  Rows rows;
  for (const StudioPart& part : studioParts) rows.items.push_back(partRow(state(), part));
  view.add(std::move(rows));
  view.help =
      Help{"Your own studio",
           "The rating is what your studio gives to a song that you record in it, for free. Each level adds one "
           "point, whatever the part, and costs more than the one before.\n\nA better studio also earns more "
           "when it is rented out."};
  return view;
}

}  // namespace backbeat
