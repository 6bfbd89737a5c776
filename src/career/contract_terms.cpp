#include "career/contract_terms.h"

#include <algorithm>
#include <vector>

#include "career/contract_end.h"
#include "core/money.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

std::string rate(double dollars) { return "$" + withDecimals(dollars, 4); }
std::string percent(double share) { return withDecimals(share * 100, 0) + "%"; }
std::string boost(double score) { return "+" + std::to_string(truncate(score)); }

/// "1 LP and 2 songs"; empty when the quotas are met.
std::string stillOwed(const ContractLabel& contract) {
  const std::pair<int64_t, const char*> quotas[] = {
      {contract.numberOfEP - contract.epReleased, "EP"},
      {contract.numberOfLP - contract.lpReleased, "LP"},
      {contract.numberOfSongs - contract.songsReleased, "song"},
  };
  std::vector<std::string> owed;
  for (const auto& [left, noun] : quotas) {
    if (left > 0) owed.push_back(counted(left, noun));
  }
  std::string text;
  for (size_t i = 0; i < owed.size(); ++i) {
    if (i > 0) text += i + 1 == owed.size() ? " and " : ", ";
    text += owed[i];
  }
  return text;
}

}  // namespace

Table contractTerms(const ContractLabel& contract, double viewingRate) {
  return {.columns = {"", "On your own", contract.recordLabel},
          .rows = {
              {"Label's share", percent(0), percent(contract.labelPercentageRate)},
              {"Per stream", rate(free_terms::streamingPayRate), rate(contract.labelStreamingRate)},
              {"Per video view", rate(free_terms::youViewStreamingRate), rate(viewingRate)},
              {"Virality of a release", boost(0), boost(contract.viralityScore)},
              {"Marketing of a new song", "Yours", std::to_string(truncate(contract.marketingScore))},
              {"Label studio", "–", std::to_string(contract.studioScore)},
              {"Guests at", percent(free_terms::featureDiscount), percent(contract.featureDiscounts)},
              {"Album price", price(free_terms::albumPricing), price(contract.albumPricing)},
              {"Cost of an album", price(free_terms::albumProductionCosts), price(0)},
              {"Tours, cost a seat", "No tours", currency(contract.tourTicketCost)},
          }};
}

int64_t contractWeeksLeft(const GameState& state, const ContractLabel& contract) {
  return contract.contractEndWeek - state.weekNumberForTracking;
}

std::string contractOutlook(const GameState& state, const ContractLabel& contract) {
  const std::string owed = stillOwed(contract);
  if (owed.empty()) return "Every term is met";
  const int64_t weeks = contractWeeksLeft(state, contract);
  if (weeks < 1) return owed + ", this week or never";
  return owed + " in " + counted(weeks, "week");
}

}  // namespace backbeat
