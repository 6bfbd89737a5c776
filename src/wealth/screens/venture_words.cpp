#include "wealth/screens/venture_words.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/short_money.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

/// Whether a text begins with the name, in whatever letters.
bool beginsWith(const std::string& text, const std::string& name) {
  const auto small = [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter; };
  return text.size() >= name.size() &&
         std::equal(name.begin(), name.end(), text.begin(), [&](char a, char b) { return small(a) == small(b); });
}

}  // namespace

std::string titleOf(const Venture& venture) {
  return venture.businessName + std::string(exitStatus(venture.hasExited));
}

std::string valuationText(const Venture& venture) {
  return venture.businessTagline + " and most recently was valued at " +
         abbreviatedDollars(static_cast<double>(venture.lastValuation));
}

Row newsRow(const Venture& venture, const std::string& text) {
  const bool rose = text.find("🔼") != std::string::npos;
  const bool fell = text.find("🔽") != std::string::npos;
  Row row{.picture = icon(rose   ? "trend"
                          : fell ? "fall"
                                 : "news"),
          .title = text,
          .tone = rose   ? Tone::good
                  : fell ? Tone::bad
                         : Tone::plain};
  if (!beginsWith(text, venture.businessName)) return row;
  row.title = text.substr(0, venture.businessName.size());
  row.subtitle = text.substr(std::min(text.find_first_not_of(": ", row.title.size()), text.size()));
  return row;
}

std::string gainText(double percent) {
  const std::string number = withDecimals(percent, 0) + "%";
  if (percent >= 1) return "+" + number;
  return percent > -1 ? withDecimals(std::fabs(percent), 0) + "%" : number;
}

Help startupsHelp() {
  return {.title = "📈 Startups 📉",
          .text =
              "Founders show their Pitch Deck among the chances of a week. For cash you get a part of the company, "
              "which pays nothing until somebody buys it or it goes public, and that can only be after Series C.\n\n"
              "Each later round makes the part of those who do not join in smaller. About once a year the company "
              "is valued anew: it may rise, fall or stay. Below $1,000,000 it goes bankrupt, and your money is "
              "gone.\n\nUntil then the company itself may buy your shares back, for less than they are worth."};
}

}  // namespace backbeat
