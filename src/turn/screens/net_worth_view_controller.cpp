#include "turn/screens/net_worth_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "turn/screens/money_figures.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

/// A possession with its share of the whole; without a fortune above 0 there is nothing to share.
Row possession(std::string glyph, const std::string& title, double value, double totalNetWorth) {
  const double share = totalNetWorth > 0 ? value / totalNetWorth : 0;
  Row row;
  row.picture = icon(std::move(glyph));
  row.title = title + withDecimals(share * 100, 1) + "%";
  row.value = currency(value);
  row.share = std::clamp(share, 0.0, 1.0);
  if (value < 0) row.tone = Tone::bad;
  return row;
}

}  // namespace

View NetWorthViewController::view() const {
  View view;
  view.title = "Net Worth";
  view.theme = Theme::bank;
  const double totalNetWorth = netAssets(state());
  Figures headline;
  headline.style = Figures::Style::large;
  headline.items.push_back(
      dollars("Net worth", totalNetWorth, totalNetWorth < 0 ? Tone::bad : Tone::plain, "At today's prices"));
  view.add(std::move(headline));
  view.add(Rows{{possession("cash", "Cash ", state().totalCashAvailable, totalNetWorth),
                 possession("house", "Property ", propertiesValue(state()), totalNetWorth),
                 possession("spark", "Venture ", venturesValue(state()), totalNetWorth),
                 possession("car", "Garage ", transportationValue(state()), totalNetWorth)}});
  return view;
}

}  // namespace backbeat
