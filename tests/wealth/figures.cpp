#include "play/figures.h"

#include "core/money.h"
#include "core/short_money.h"
#include "wealth/career_records.h"
#include "wealth/property_catalogue.h"
#include "wealth/rich_list.h"
#include "wealth/screens/venture_words.h"
#include "wealth/vehicle_catalogue.h"
#include "wealth/venture_rounds.h"
#include "wealth/venture_sale.h"

namespace backbeat {

namespace {

constexpr int64_t dearestInReach = 5003;

Standings sizesOf(int64_t bedrooms, int64_t bathrooms, int64_t sqft, const std::string& acres) {
  return {{"beds", std::to_string(bedrooms)},
          {"baths", std::to_string(bathrooms)},
          {"sq ft", withCommas(sqft)},
          {"acres", acres}};
}

Standings marketFigures(Game&) {
  Standings standings = {{"poster: figure", "$4,335,000"},
                         {"Market index", "1.250"},
                         {"Market index: note", "up 25.0%"},
                         {"Property tax", "$834"},
                         {"Selling fee", "6%"},
                         {"heading", "27 homes listed"},
                         {"Portfolio", "", "goToPropertyPortfolio"},
                         {"Purchase: price", "75 energy $4,335,000"}};
  for (const Property& property : properties) {
    if (property.propertyId == dearestInReach) continue;
    const std::string where(property.propertyTitle);
    standings.push_back({where, "$" + abbreviated(property.salePrice)});
    const bool isLand = where.find("(Land)") != std::string::npos;
    standings.push_back({where + ": note", isLand ? "" : counted(property.bedrooms, "bed")});
  }
  for (Standing& standing : standings) {
    if (standing.where == "Yellowstone Ranch (Land): note") standing.says = "266,000 acres";
    if (standing.where == "Coral Springs (Land): note") standing.says = "360 acres";
    if (standing.where == "Heart Key (Land): note") standing.says = "75 acres";
    if (standing.where == "Private Hawaiian Beach (Land): note") standing.says = "31.96 acres";
  }
  return standings + sizesOf(6, 7, 3'899, "1.07");
}

Standings portfolioFigures(Game& twin) {
  const InvestmentProperty& villa = twin.state.saveAllInvestmentPropertyList[0];
  return sizesOf(villa.bedrooms, villa.bathrooms, villa.sqft, withCommas(static_cast<int64_t>(villa.acres))) +
         Standings{{"poster", villa.propertyTitle},
                   {"poster: text", villa.propertyLocation},
                   {"poster: figure", currency(1'310'000 * 1.125)},
                   {"Since purchase", "+12.5%"},
                   {"Since purchase: note", "Estimate: $1.4M"},
                   {"Purchase price", "$1.3M"},
                   {"Purchase price: note", "Index: 1.125"},
                   {"Property tax", currency(static_cast<double>(villa.propertyTax))},
                   {"Market", "Index: 1.250"},
                   {"Market: note", "up 25.0%"},
                   {"Sell: price", "75 energy"}};
}

Standings motorsFigures(Game& twin) {
  const Transportation& boat = twin.state.saveAllTransportationOwnedList[0];
  Standings standings = {{boat.title, "$423,000"},
                         {boat.title + ": subtitle", "Bought " + std::to_string(boat.yearPurchased) + " for $470,000"},
                         {"Lost in value", "-10.0%"},
                         {"Lost in value: note", "2.5% a year"},
                         {"Insurance", currency(boat.weeklyCost)},
                         {"Energy", "+" + std::to_string(boat.energyBonus)},
                         {"Energy: note", "in all: +" + std::to_string(boat.energyBonus)},
                         {"button", "Sell the " + boat.title}};
  for (const TransportationOption& option : vehicles) {
    const std::string where(option.title);
    standings.push_back({where + ": subtitle", currency(option.weeklyInsuranceCost) + "/wk"});
    standings.push_back({where + ": price", currency(option.salePrice)});
    if (option.energyBonus == 0) continue;
    standings.push_back({where + ": note", "+" + std::to_string(option.energyBonus) + " max energy"});
  }
  return standings;
}

Standings richListFigures(Game& twin) {
  const GameState& state = twin.state;
  const double property = 1'310'000 * 1.125;
  const double garage = 470'000 * 0.9;
  const double ventures = 6'060'606 / 4.0;
  const double all = state.totalCashAvailable + property + garage + ventures;
  Standings standings = {{"Real Time Net Worth", "$8.8M"},
                         {"Real Time Net Worth: note",
                          "up " + abbreviatedDollars(all - state.netWorthSinceLastChecked) + " since your last visit"},
                         {"Self-Made Score", std::to_string(selfMadeScore(state))},
                         {"Philanthropy Score", std::to_string(1 + state.charisma / 25)}};
  const std::pair<const char*, double> parts[] = {
      {"Ventures", ventures}, {"Property", property}, {"Garage", garage}, {"Cash", state.totalCashAvailable}};
  for (const auto& [title, value] : parts) {
    standings.push_back({title, abbreviatedDollars(value)});
    standings.push_back({std::string(title) + ": share", shareText(value / all)});
  }
  for (const RecordLine& line : careerRecords(state)) {
    standings.push_back({line.label, line.value});
    if (!line.note.empty()) standings.push_back({line.label + ": subtitle", line.note});
  }
  return standings;
}

Standings startupsFigures(Game& twin) {
  const Venture& sprout = twin.state.saveAllVentureInvestments[0];
  const std::string percent = std::to_string(sprout.percentageOwned) + "%";
  return {{"Worth today", "$1,515,152"},
          {"Worth today: note", "+$505,050 on $1,010,101 put in"},
          {"Sprout: share", shareText(1)},
          {"SPROUT: subtitle", "is on a roll.  up from $4.4M 🔼🎉"},
          {"heading", "News"},
          {"heading", "Holdings · 1 running"},
          {"Sprout", "$1.5M", "goToSellVentureShares 83"},
          {"Sprout: subtitle", "Series B · " + percent},
          {"Sprout: subtitle (2)", sprout.businessTagline + " and most recently was valued at $6.0M"},
          {"Sprout: note", "+50%"},
          {"Sprout: points", pointsText({1'010'101, 6'060'606 / 4.0})}};
}

Standings stakeFigures(Game& twin) {
  const Venture& sprout = twin.state.saveAllVentureInvestments[0];
  const std::string percent = std::to_string(sprout.percentageOwned) + "%";
  const double rate = buyBackRate(twin.random.integer(0, 100));
  const double offer = 6'060'606 / 4.0 * rate;
  return {{"cover: badge", "Series B"},
          {"You: share", shareText(1)},
          {"Not sold: share", shareText(1)},
          {"cover: text", sprout.businessTagline + " and most recently was valued at $6.0M"},
          {"Your part", percent},
          {"Your part: note", "20,000 shares"},
          {"Put in", "$1.0M"},
          {"Worth", "$1.5M"},
          {"Worth: note", "+50%"},
          {"The offer", currency(offer)},
          {"The offer: note", gainText((offer - 1'010'101) / 1'010'101 * 100) + " on what you put in"},
          {"text",
           "Sprout is operating as a private growth company so your stake can only be sold to other internal "
           "shareholders until it is bought or goes public.\n\n20,000 shares (" +
               percent + ")\n\nSprout is interested at buying back your stake at a" +
               withDecimals((1 - rate) * 100, 0) + "% discount."},
          {"text", sprout.businessDescription},
          {"You", percent},
          {"Not sold", std::to_string(sprout.percentageRemaining) + "%"},
          {"SPROUT: subtitle", "is on a roll.  up from $4.4M 🔼🎉"}};
}

void pitchTheRockets(Game& game) { game.launch.ventures.ventureDealIndex = 2; }

Standings dealFigures(Game& twin) {
  const FundingOffer offer = drawPitch(twin.random, companies[2]);
  const std::string percent = std::to_string(offer.percent);
  const std::string whole = withCommas(100'000 * offer.percent) + " shares (" + percent + "% stake in Space Alpha)";
  const int64_t half = offer.percent / 2;
  const std::string part = withCommas(100'000 * half) + " shares (" + std::to_string(half) + "% stake in Space Alpha)";
  return {{"cover: badge", "Seed"},
          {"text", std::string(companies[2].businessDescription)},
          {"text",
           "The round values Space Alpha at $45,000,000. Your money comes back when it is bought or goes public, "
           "and that is after Series C."},
          {"Your part of the round", whole + " • Fully Funded"},
          {"Your part of the round", part},
          {"Your part of the round: " + whole + " • Fully Funded: note",
           currency(450'000.0 * static_cast<double>(offer.percent))},
          {"Your part of the round: " + part + ": note", currency(450'000.0 * static_cast<double>(half))},
          {"You would own", percent + ".0%"},
          {"Worth at this price", abbreviatedDollars(450'000.0 * static_cast<double>(offer.percent))},
          {"Pays above", "$45.0M"},
          {"Invest: price", currency(450'000.0 * static_cast<double>(offer.percent))}};
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToPropertyListing", .figures = marketFigures},
      {.segue = "goToPropertyPortfolio", .figures = portfolioFigures},
      {.segue = "goToTransportationOptions", .figures = motorsFigures},
      {.segue = "goToVenturePortfolio", .figures = startupsFigures},
      {.segue = "goToSellVentureShares", .argument = "83", .figures = stakeFigures},
      {.segue = "goToVentureDeal", .figures = dealFigures, .before = pitchTheRockets},
      {.segue = "goToForbesDetail", .figures = richListFigures},
  };
}

const FiguresOf wealth{.screens = screens};

}  // namespace

}  // namespace backbeat
