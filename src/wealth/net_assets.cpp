#include "wealth/net_assets.h"

#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr double yearlyDepreciation = -0.025;

}  // namespace

double estimateOf(const Venture& venture) {
  if (venture.totalOutstandingShares == 0) return 0;
  const double per100 =
      static_cast<double>(venture.totalSharesOwned) / static_cast<double>(venture.totalOutstandingShares) * 100;
  return per100 / 100 * static_cast<double>(venture.lastValuation);
}

double venturesValue(const GameState& state) {
  double sum = 0;
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (isRunning(venture)) sum += estimateOf(venture);
  }
  return sum;
}

double estimateOf(const GameState& state, const InvestmentProperty& home) {
  return home.pricePaid * (state.realEstateIndex - home.realEstateIndex + 1);
}

double propertiesValue(const GameState& state) {
  double sum = 0;
  for (const InvestmentProperty& home : state.saveAllInvestmentPropertyList) sum += estimateOf(state, home);
  return sum;
}

double estimateOf(const GameState& state, const Transportation& vehicle) {
  const double years = static_cast<double>(state.yearNumber - vehicle.yearPurchased);
  return vehicle.pricePaid + years * yearlyDepreciation * vehicle.pricePaid;
}

double transportationValue(const GameState& state) {
  double sum = 0;
  for (const Transportation& vehicle : state.saveAllTransportationOwnedList) sum += estimateOf(state, vehicle);
  return sum;
}

double netAssets(const GameState& state) {
  return venturesValue(state) + propertiesValue(state) + transportationValue(state) + state.totalCashAvailable;
}

}  // namespace backbeat
