#include "turn/figures.h"

namespace backbeat {

double entry(const GameState& state, std::string_view title) {
  const auto& items = state.saveAllWeeklyLineItems;
  return items[items.find([&](const WeeklyLineItem& item) { return item.title == title; })].amount;
}

double livingCosts(const GameState& state) {
  return entry(state, "House Chef") + entry(state, "Stylist") + entry(state, "Basic Needs");
}

double merchOf(const GameState& state) {
  return earned(state.saveAllMerchWeeklySales, state, &MerchWeeklySales::merchGross) -
         earned(state.saveAllMerchWeeklySales, state, &MerchWeeklySales::merchTransactionFees);
}
double labelAlbums(const GameState& state) {
  return earned(state.saveAllSignedArtistWeeklyAlbumSales, state, &SignedArtistWeeklyAlbumSales::albumRevenue) * 1.125;
}
double labelStreams(const GameState& state) {
  return earned(state.saveAllSignedArtistWeeklySongListens, state, &SignedArtistWeeklySongListens::totalStreamRevenue) *
         1.125;
}

double standingNet(const GameState& state) {
  double net = state.weeklyJobIncome - state.saveAllChildList[0].weeklyFinancialCost;
  for (const Entry& one : entries) net += one.isExpense ? -entry(state, one.title) : entry(state, one.title);
  return net - state.labelOfficePerkSpend * 3 - state.labelOfficeRent;
}

}  // namespace backbeat
