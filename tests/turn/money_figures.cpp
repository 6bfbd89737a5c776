#include <cmath>

#include "core/money.h"
#include "turn/figures.h"

namespace backbeat {

namespace {

/// A line is rounded once, and what is summed up from lines agrees with them.
double told(double amount) { return std::nearbyint(amount); }

/// The lines of the statement, in dollars.
struct Statement {
  double ownWork;
  double label;
  double expenses;
  Standings lines;
};

Statement statementOf(const GameState& state) {
  const double albums = told(earned(state.saveAllWeeklyAlbumSales, state, &WeeklyAlbumSales::albumRevenue));
  const double streams = told(earned(state.saveAllWeeklySongListens, state, &WeeklySongListens::totalStreamRevenue));
  const double touring = told(earned(state.saveAllWeeklyTourSales, state, &WeeklyTourSales::tourRevenue));
  const double verses =
      told(earned(state.saveAllFeaturedOnWeeklySongListens, state, &FeaturedOnWeeklySongListens::totalStreamRevenue));
  const double fee = told(state.saveAllFeaturedOnList[0].flatFee);
  const double festival = told(state.saveAllFestivalList[0].payment);
  const double videos = told(earned(state.saveAllWeeklyVideoViews, state, &WeeklyVideoViews::totalViewRevenue));
  // What the label pays past the salaries counts as lifestyle: intended.
  const double lifestyle = told(livingCosts(state) + entry(state, "Label campaign"));
  const double family = told(state.saveAllChildList[0].weeklyFinancialCost);
  const double merch = told(merchOf(state));
  const double ofLabel[] = {told(labelAlbums(state)), told(labelStreams(state))};
  const double insurance = told(entry(state, "Insurance of the boat"));
  const double tax = told(entry(state, "Tax of the villa"));
  const double staff = told(entry(state, "Pay of the manager"));
  const double shop = told(entry(state, "Web shop"));
  const double rent = told(state.labelOfficeRent);
  const double perks = told(3 * state.labelOfficePerkSpend);
  return {albums + streams + touring + verses + fee + festival + merch + videos,
          ofLabel[0] + ofLabel[1],
          lifestyle + family + perks + rent + insurance + tax + staff + shop,
          {{"Albums", currency(albums)},
           {"Streams", currency(streams)},
           {"Touring", currency(touring)},
           {"Featured on", currency(verses)},
           {"Flat fees", currency(fee)},
           {"Festival", currency(festival)},
           {"Merch", currency(merch)},
           {"Music videos", currency(videos)},
           {"Albums (+12.5%)", currency(ofLabel[0])},
           {"Streams (+12.5%)", currency(ofLabel[1])},
           {"Lifestyle", currency(-lifestyle)},
           {"Family", currency(-family)},
           {"Insurance", currency(-insurance)},
           {"Property tax", currency(-tax)},
           {"Merchandise", currency(-shop)},
           {"Office staff", currency(-staff)},
           {"Office perks", currency(-perks)},
           {"Office rent", currency(-rent)}}};
}

constexpr double property = 1'310'000 * 1.125;
constexpr double garage = 470'000 * 0.9;
constexpr double ventures = 6'060'606 / 4.0;

double fortune(const GameState& state) { return state.totalCashAvailable + property + garage + ventures; }

Standings netWorthFigures(Game& twin) {
  const double all = fortune(twin.state);
  Standings standings = {{"Net worth", currency(all)}};
  const std::pair<const char*, double> parts[] = {
      {"Cash ", twin.state.totalCashAvailable}, {"Property ", property}, {"Venture ", ventures}, {"Garage ", garage}};
  for (const auto& [title, value] : parts) {
    const std::string where = title + withDecimals(value / all * 100, 1) + "%";
    standings.push_back({where, currency(value)});
    standings.push_back({where + ": share", shareText(value / all)});
  }
  return standings;
}

Standings statementFigures(Game& twin) {
  const Statement statement = statementOf(twin.state);
  return statement.lines + netWorthFigures(twin) +
         Standings{{"subtitle", "Week 35, 2049"},
                   {"Net", currency(statement.ownWork + statement.label - statement.expenses)},
                   {"Own work", currency(statement.ownWork)},
                   {"Total income", currency(statement.ownWork + statement.label)},
                   {"Total expenses", currency(-statement.expenses)}};
}

Standings businessFigures(Game& twin) {
  const GameState& state = twin.state;
  const Statement statement = statementOf(state);
  return {{"Cash", currency(state.totalCashAvailable)},
          {"Standing net", currency(standingNet(state))},
          {"Expenses", currency(-livingCosts(state)), "goToExpenseScreen"},
          {"Income Statement", currency(statement.ownWork + statement.label - statement.expenses), "goToBalanceSheet"},
          {"Income Statement: subtitle", "Week 35, without job pay"},
          {"Net Worth", currency(fortune(state)), "goToNetWorth"},
          {"On Tour", "", "goToTourDetails"},
          {"MY LABEL", "", "goToLabelDetail"},
          {"MY LABEL: subtitle", state.myLabelName},
          {"Merch", currency(merchOf(state)), "goToMerch"},
          {"Merch: subtitle", "3 products on the shelf"},
          {"International Realty", "", "goToPropertyListing"},
          {"Portfolio", currency(property), "goToPropertyPortfolio"},
          {"Portfolio: subtitle", "1 holding"},
          {"Startups", currency(ventures), "goToVenturePortfolio"},
          {"Startups: subtitle", "1 running"},
          {"Farbes", "Unranked", "goToForbesDetail"},
          {"Motors", currency(garage), "goToTransportationOptions"},
          {"Motors: subtitle", state.saveAllTransportationOwnedList[0].title}};
}

Standings expenseFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"figures", "Weekly Lifestyle Expenses Only: " + currency(livingCosts(state))},
                         {"A week", currency(-livingCosts(state))}};
  for (const char* title : {"House Chef", "Stylist", "Basic Needs"}) {
    const auto& items = state.saveAllWeeklyLineItems;
    const WeeklyLineItem& item = items[items.find([&](const WeeklyLineItem& one) { return one.title == title; })];
    standings.push_back({item.title, currency(-item.amount)});
    standings.push_back({item.title + " (2)", "+" + std::to_string(item.energyBoost)});
    standings.push_back({item.title + ": subtitle", "Since " + std::to_string(item.year)});
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "business", .figures = businessFigures},
      {.segue = "goToBalanceSheet", .figures = statementFigures},
      {.segue = "goToExpenseScreen", .figures = expenseFigures},
      {.segue = "goToNetWorth", .figures = netWorthFigures},
  };
}

const FiguresOf money{.screens = screens};

}  // namespace

}  // namespace backbeat
