#include "career/contract_end.h"

#include "career/label_contract.h"
#include "career/touring.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

/// Back to the terms of an artist without a label.
void freeArtist(Game& game) {
  GameState& state = game.state;
  state.saveAllContractLabelList.clear();
  state.underContract = 0;
  state.streamingPayRate = free_terms::streamingPayRate;
  state.youViewStreamingRate = free_terms::youViewStreamingRate;
  state.contractViralityBoost = 0;
  state.contractMarketingBoost = 0;
  state.contractAlbumPricing = free_terms::albumPricing;
  state.contractStudioScore = 0;
  state.contractFeatureDiscount = free_terms::featureDiscount;
  state.albumProductionCosts = free_terms::albumProductionCosts;
  game.save(&GameState::saveAllContractLabelList, &GameState::underContract, &GameState::streamingPayRate,
            &GameState::youViewStreamingRate, &GameState::contractViralityBoost, &GameState::contractMarketingBoost,
            &GameState::contractAlbumPricing, &GameState::contractStudioScore, &GameState::contractFeatureDiscount,
            &GameState::albumProductionCosts);
}

void callOffShows(Game& game) {
  RecordList<MusicTour>& shows = game.state.saveAllMusicTourList;
  for (size_t i = 0; i < shows.size(); ++i) {
    if (!shows[i].hasPerformed) shows.update(i, [](MusicTour& show) { show.hasPerformed = true; });
  }
  game.save(&GameState::saveAllMusicTourList);
}

void endTour(Game& game) {
  game.state.onTour = 0;
  game.state.onTourEnergyCost = 0;
  game.state.timeUntilNextTour = drawRestAfterTour(game.random);
  game.save(&GameState::onTour, &GameState::onTourEnergyCost, &GameState::timeUntilNextTour);
}

Outcome stillOnTour() {
  return refuse<"Currently on Tour">("\nYou cannot terminate a contract while you are on tour.");
}

}  // namespace

bool contractFulfilled(const ContractLabel& contract) {
  return contract.epReleased >= contract.numberOfEP && contract.lpReleased >= contract.numberOfLP &&
         contract.songsReleased >= contract.numberOfSongs;
}

Outcome checkContractDeadlines(Game& game) {
  GameState& state = game.state;
  if (state.underContract < 1) return {};
  const size_t missed = state.saveAllContractLabelList.find([&](const ContractLabel& contract) {
    return contract.contractId == 0 && contract.contractEndWeek < state.weekNumberForTracking &&
           !contractFulfilled(contract);
  });
  if (missed == state.saveAllContractLabelList.size()) return {};
  const double advance = state.saveAllContractLabelList[missed].initialCash;
  const bool onTour = state.onTour >= 1;
  if (onTour) callOffShows(game);
  freeArtist(game);
  pay(game, {.dollars = advance});
  if (onTour) endTour(game);
  stateChanged(game);
  return news<"❌ Terminated ❌">(
      "\nYou were not able to fulfill the terms of your contract in the agreed upon time. You are required to "
      "pay back " +
          currency(advance) + ".",
      Feedback::warning);
}

bool freeFromLostContract(Game& game) {
  const GameState& state = game.state;
  if (state.underContract == 0 || runningContract(state) != state.saveAllContractLabelList.size()) return false;
  if (state.onTour >= 1) return false;  // the shows go on without cost or cut; nobody else could call them off
  freeArtist(game);
  return true;
}

Outcome endContract(const GameState& state) {
  const size_t running = runningContract(state);
  if (state.underContract < 1 || running == state.saveAllContractLabelList.size()) return {};
  if (state.onTour != 0) return stillOnTour();
  const ContractLabel& contract = state.saveAllContractLabelList[running];
  const std::string sure = "\nAre you sure you want to cancel your contract?\n\n";
  const AlertButton yes = {"Yes, Cancel", {"confirmEndContract", ""}, AlertButton::Style::destructive};
  if (contractFulfilled(contract)) {
    return ask<"End Partnership?">(sure + "There is no penalty since your contract was fulfilled.", "Nope", yes);
  }
  return ask<"Cancel Contract?">(
      sure + "You will owe " + currency(contract.initialCash) + " back to " + contract.recordLabel + ".", "Nope", yes);
}

Outcome confirmEndContract(Game& game) {
  const GameState& state = game.state;
  const size_t running = runningContract(state);
  if (state.underContract < 1 || running == state.saveAllContractLabelList.size()) return {};
  if (state.onTour != 0) return stillOnTour();
  const ContractLabel contract = state.saveAllContractLabelList[running];
  if (!contractFulfilled(contract)) pay(game, {.dollars = contract.initialCash});
  freeArtist(game);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
