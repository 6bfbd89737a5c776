#include "career/builders.h"

#include <utility>

namespace backbeat {

ContractLabel contractWith(const std::string& recordLabel, int64_t startWeek, int64_t endWeek) {
  ContractLabel contract;
  contract.recordLabel = recordLabel;
  contract.contractStartWeek = startWeek;
  contract.contractEndWeek = endWeek;
  contract.albumPricing = 8.99;
  contract.featureDiscounts = 0.8;
  return contract;
}

void signContract(GameState& state, ContractLabel contract) {
  state.underContract = 1;
  state.saveAllContractLabelList.append(std::move(contract));
}

}  // namespace backbeat
