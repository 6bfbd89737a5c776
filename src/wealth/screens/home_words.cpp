#include "wealth/screens/home_words.h"

#include <cmath>

#include "core/money.h"
#include "core/view_words.h"
#include "wealth/real_estate.h"

namespace backbeat {

namespace {

template <class Home>
std::vector<Fact> sizes(const Home& home) {
  std::vector<Fact> facts;
  if (home.sqft > 0) {
    facts = {{.icon = "bed", .label = "beds", .value = std::to_string(home.bedrooms)},
             {.icon = "bath", .label = "baths", .value = std::to_string(home.bathrooms)},
             {.icon = "area", .label = "sq ft", .value = withCommas(home.sqft)}};
  }
  facts.push_back({.icon = "land", .label = "acres", .value = acresText(home.acres)});
  return facts;
}

}  // namespace

std::vector<Fact> factsOf(const Property& property) { return sizes(property); }
std::vector<Fact> factsOf(const InvestmentProperty& home) { return sizes(home); }

std::string changeText(double change) {
  const std::string percent = withDecimals(std::fabs(change) * 100, 1);
  if (percent == "0.0") return "unchanged";
  return (change < 0 ? "down " : "up ") + percent + "%";
}

Tile marketTile(double index) {
  const double change = index - 1;
  return {.label = "Market index",
          .value = withDecimals(index, 3),
          .note = changeText(change),
          .tone = toneOfChange(change)};
}

}  // namespace backbeat
