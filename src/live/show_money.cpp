#include "live/show_money.h"

#include "career/label_contract.h"

namespace backbeat {

namespace {

constexpr double ownLabelTicketCost = 125;

}  // namespace

ShowTerms showTerms(const GameState& state) {
  if (state.isLabelLaunched > 0) return {.recordLabelTicketCost = ownLabelTicketCost};
  const size_t running = runningContract(state);
  if (state.underContract < 1 || running == state.saveAllContractLabelList.size()) return {};
  const ContractLabel& contract = state.saveAllContractLabelList[running];
  return {.recordLabelTicketCost = contract.tourTicketCost, .cut = contract.labelPercentageRate};
}

double netOfShow(const ShowTerms& terms, double ticketPrice, int64_t seats) {
  const auto sold = static_cast<double>(seats);
  return (ticketPrice * sold - terms.recordLabelTicketCost * sold) * (1 - terms.cut);
}

}  // namespace backbeat
