#include "turn/screens/money_figures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/money.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

/// A possession with its share of the whole; without a fortune above 0 there is nothing to share.
Row possession(std::string glyph, const std::string& title, double value, double totalNetWorth) {
  const double share = totalNetWorth > 0 ? value / totalNetWorth : 0;
  return {.picture = icon(std::move(glyph)),
          .title = title + withDecimals(share * 100, 1) + "%",
          .value = currency(value),
          .tone = value < 0 ? Tone::bad : Tone::plain,
          .share = std::clamp(share, 0.0, 1.0)};
}

}  // namespace

Figure dollars(std::string label, double amount, Tone tone, std::string note) {
  return {.label = std::move(label),
          .value = currency(amount),
          .amount = amount,
          .dollars = true,
          .tone = tone,
          .note = std::move(note)};
}

Figure totalOf(std::string label, const std::vector<Figure>& lines) {
  double sum = 0;
  for (const Figure& line : lines) sum += std::nearbyint(line.amount);
  return dollars(std::move(label), sum, Tone::plain);
}

void describeNetWorth(View& view, const GameState& state) {
  const double totalNetWorth = netAssets(state);
  const Tone tone = totalNetWorth < 0 ? Tone::bad : Tone::plain;
  view.add(Figures{.items = {dollars("Net worth", totalNetWorth, tone, "At today's prices")},
                   .style = Figures::Style::large});
  view.add(Rows{{possession("cash", "Cash ", state.totalCashAvailable, totalNetWorth),
                 possession("house", "Property ", propertiesValue(state), totalNetWorth),
                 possession("spark", "Venture ", venturesValue(state), totalNetWorth),
                 possession("car", "Garage ", transportationValue(state), totalNetWorth)}});
}

}  // namespace backbeat
