#include "career/label_contract.h"

namespace backbeat {

size_t runningContract(const GameState& state) {
  return state.saveAllContractLabelList.find([](const ContractLabel& contract) { return contract.contractId == 0; });
}

void recordSongRelease(Game& game) {
  RecordList<ContractLabel>& contracts = game.state.saveAllContractLabelList;
  const size_t running = runningContract(game.state);
  if (game.state.underContract != 1 || running == contracts.size()) return;
  contracts.update(running, [](ContractLabel& contract) { contract.songsReleased += 1; });
  game.save(&GameState::saveAllContractLabelList);
}

void recordAlbumRelease(Game& game, int64_t songCount, int64_t songsReleasedNow) {
  RecordList<ContractLabel>& contracts = game.state.saveAllContractLabelList;
  const size_t running = runningContract(game.state);
  if (game.state.underContract != 1 || running == contracts.size()) return;
  contracts.update(running, [&](ContractLabel& contract) {
    contract.songsReleased += songsReleasedNow;
    (songCount < fewestSongsOnLp ? contract.epReleased : contract.lpReleased) += 1;
  });
  game.save(&GameState::saveAllContractLabelList);
}

}  // namespace backbeat
