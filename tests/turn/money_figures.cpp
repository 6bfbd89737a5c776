#include "core/money.h"
#include "turn/figures.h"

namespace backbeat {

namespace {

/// The lines of the statement, in dollars.
struct Statement {
  double ownWork;
  double label;
  double expenses;
  Standings lines;
};

Statement statementOf(const GameState& state) {
  const double albums = earned(state.saveAllWeeklyAlbumSales, state, &WeeklyAlbumSales::albumRevenue);
  const double streams = earned(state.saveAllWeeklySongListens, state, &WeeklySongListens::totalStreamRevenue);
  const double touring = earned(state.saveAllWeeklyTourSales, state, &WeeklyTourSales::tourRevenue);
  const double verses =
      earned(state.saveAllFeaturedOnWeeklySongListens, state, &FeaturedOnWeeklySongListens::totalStreamRevenue);
  const double fee = state.saveAllFeaturedOnList[0].flatFee;
  const double festival = state.saveAllFestivalList[0].payment;
  const double videos = earned(state.saveAllWeeklyVideoViews, state, &WeeklyVideoViews::totalViewRevenue);
  // What the label pays past the salaries counts as lifestyle: intended.
  const double lifestyle = livingCosts(state) + entry(state, "Label campaign");
  const double family = state.saveAllChildList[0].weeklyFinancialCost;
  const double perks = 3 * state.labelOfficePerkSpend;
  return {albums + streams + touring + verses + fee + festival + merchOf(state) + videos,
          labelAlbums(state) + labelStreams(state),
          lifestyle + family + perks + state.labelOfficeRent + entry(state, "Insurance of the boat") +
              entry(state, "Tax of the villa") + entry(state, "Pay of the manager") + entry(state, "Web shop"),
          {{"Albums", currency(albums)},
           {"Streams", currency(streams)},
           {"Touring", currency(touring)},
           {"Featured on", currency(verses)},
           {"Flat fees", currency(fee)},
           {"Festival", currency(festival)},
           {"Merch", currency(merchOf(state))},
           {"Music videos", currency(videos)},
           {"Albums (+12.5%)", currency(labelAlbums(state))},
           {"Streams (+12.5%)", currency(labelStreams(state))},
           {"Lifestyle", currency(-lifestyle)},
           {"Family", currency(-family)},
           {"Insurance", currency(-entry(state, "Insurance of the boat"))},
           {"Property tax", currency(-entry(state, "Tax of the villa"))},
           {"Merchandise", currency(-entry(state, "Web shop"))},
           {"Office staff", currency(-entry(state, "Pay of the manager"))},
           {"Office perks", currency(-perks)},
           {"Office rent", currency(-state.labelOfficeRent)}}};
}

Standings statementFigures(Game& twin) {
  const Statement statement = statementOf(twin.state);
  return statement.lines + Standings{{"subtitle", "Week 35, 2049"},
                                     {"Net", currency(statement.ownWork + statement.label - statement.expenses)},
                                     {"Own work", currency(statement.ownWork)},
                                     {"Total income", currency(statement.ownWork + statement.label)},
                                     {"Total expenses", currency(-statement.expenses)}};
}

constexpr double property = 1'310'000 * 1.125;
constexpr double garage = 470'000 * 0.9;
constexpr double ventures = 6'060'606 / 4.0;

double fortune(const GameState& state) { return state.totalCashAvailable + property + garage + ventures; }

Standings businessFigures(Game& twin) {
  const GameState& state = twin.state;
  const Statement statement = statementOf(state);
  return {{"Cash", currency(state.totalCashAvailable)},
          {"Standing net", currency(standingNet(state))},
          {"Expenses", currency(-livingCosts(state)), "goToExpenseScreen"},
          {"Income Statement", currency(statement.ownWork + statement.label - statement.expenses), "goToBalanceSheet"},
          {"Income Statement: subtitle", "Week 35, without job pay"},
          {"Net Worth", currency(fortune(state)), "goToNetWorth"}};
}

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
