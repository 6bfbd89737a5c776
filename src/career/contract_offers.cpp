#include "career/contract_offers.h"

#include <array>

#include "core/bands.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr int64_t thresholdBase = 30'000;
constexpr int64_t thresholdSpan = 45'000;
constexpr int64_t luckyDraw = 5;

constexpr std::array<RecordLabel, 5> recordLabels = {{
    {"TNA Entertainment", "tna.png", "Local", 50'000'000},
    {"Atlas Records", "atlas.png", "State", 250'000'000},
    {"Infinity Music", "infinity.png", "Regional", 500'000'000},
    {"Legendary Records", "legendary.png", "National", 1'500'000'000},
    {"Global Music Group", "global.png", "Global", 3'000'000'000},
}};

constexpr Band<int64_t, int64_t> levels[] = {
    {499'999, 0}, {999'999, 1}, {2'999'999, 2}, {9'999'999, 3}, {10'000'000'000, 4},
};

struct Whole {
  int64_t lo;
  int64_t hi;
};
struct Fraction {
  double lo;
  double hi;
};

/// What a label of one level offers. A better label takes less and gives more.
struct OfferRow {
  Whole cash;  // tens of thousands of dollars
  Fraction percentageRate;
  Fraction streamingRate;
  Whole marketingScore;
  Whole viralityScore;
  Whole studioScore;
  Fraction featureDiscount;
  Whole tourTicketCost;
  Fraction viewingRates;
};

constexpr std::array<OfferRow, 5> offerRows = {{
    {{10, 25}, {0.80, 0.90}, {0.0015, 0.003}, {10, 30}, {2, 4}, {50, 60}, {0.90, 0.95}, {110, 120}, {0.0055, 0.007}},
    {{25, 60}, {0.75, 0.85}, {0.0025, 0.004}, {30, 50}, {4, 8}, {60, 70}, {0.85, 0.90}, {100, 110}, {0.0065, 0.008}},
    {{60, 150}, {0.70, 0.80}, {0.0035, 0.005}, {50, 70}, {8, 12}, {70, 80}, {0.80, 0.85}, {90, 100}, {0.0075, 0.009}},
    {{150, 1000}, {0.65, 0.75}, {0.0045, 0.006}, {70, 90}, {12, 16}, {80, 90}, {0.75, 0.80}, {80, 90}, {0.0085, 0.01}},
    {{1000, 2500},
     {0.60, 0.70},
     {0.0055, 0.007},
     {90, 135},
     {16, 20},
     {90, 135},
     {0.70, 0.75},
     {70, 80},
     {0.009, 0.015}},
}};

constexpr std::array<double, 3> albumPricingOptions = {6.99, 9.99, 12.99};
constexpr int64_t cashUnit = 10'000;
constexpr int64_t graceWeeks = 26;

int64_t drawn(Random& random, Whole range) { return random.integer(range.lo, range.hi); }
double drawn(Random& random, Fraction range) { return random.uniformDouble(range.lo, range.hi); }

}  // namespace

void checkLabelOfferBadge(Game& game) {
  const GameState& state = game.state;
  const int64_t draw = game.random.integer(0, 9);
  const int64_t threshold = game.random.integer(0, thresholdSpan);
  if (state.totalFans < fewestFansForOffer || threshold + thresholdBase >= state.totalFans ||
      state.isLabelLaunched != 0)
    return;
  const bool offered = state.underContract == 0 && game.launch.contractOfferState == 0 && draw == luckyDraw;
  game.launch.contractOfferState = offered ? 1 : 0;
}

int64_t contractLevelFor(int64_t totalFans) { return bandFor(levels, totalFans, int64_t{0}); }

const RecordLabel& recordLabelOf(int64_t contractLevel) { return recordLabels[static_cast<size_t>(contractLevel)]; }

void drawContractOffer(Game& game) {
  const GameState& state = game.state;
  if (game.launch.contractOfferState != 1 || state.underContract != 0) return;
  game.launch.contractOfferState = 2;
  ContractOffer& offer = game.launch.contractOffer;
  offer = ContractOffer();
  offer.contractLevel = contractLevelFor(state.totalFans);
  const OfferRow& row = offerRows[static_cast<size_t>(offer.contractLevel)];
  Random& random = game.random;
  offer.tempAlbumPricing = random.element(albumPricingOptions);
  offer.tempEp = random.integer(0, 2);
  offer.tempLp = random.integer(1, 3);
  offer.tempCash = drawn(random, row.cash) * cashUnit;
  offer.tempPercentageRate = drawn(random, row.percentageRate);
  offer.tempStreamingRate = drawn(random, row.streamingRate);
  offer.tempMarketingScore = drawn(random, row.marketingScore);
  offer.tempViralityScore = drawn(random, row.viralityScore);
  offer.tempStudioScore = drawn(random, row.studioScore);
  offer.tempFeatureDiscount = drawn(random, row.featureDiscount);
  offer.tempTourTicketCost = drawn(random, row.tourTicketCost);
  offer.tempViewingRates = drawn(random, row.viewingRates);
  const int64_t weeksForEp = random.integer(7, 13);
  const int64_t weeksForLp = random.integer(7, 20);
  const int64_t songsOnEp = random.integer(3, 5);
  const int64_t songsOnLp = random.integer(6, 15);
  offer.tempSongs = offer.tempEp * songsOnEp + offer.tempLp * songsOnLp;
  offer.tempStartDate = state.weekNumberForTracking;
  offer.tempEndDate =
      offer.tempStartDate + offer.tempEp * weeksForEp + offer.tempLp * weeksForLp + offer.tempSongs + graceWeeks;
}

std::string offerGreeting(const ContractOffer& offer) {
  const RecordLabel& label = recordLabelOf(offer.contractLevel);
  return std::string("We are pleased to offer you a chance to join the ") + label.recordLabel +
         " family. Together, our artists generate over " + currency(label.revenueLabel) +
         " in revenue each year. Please review the terms before signing. We are excited to hear from you!";
}

std::string offerDeal(const ContractOffer& offer) {
  const RecordLabel& label = recordLabelOf(offer.contractLevel);
  return std::string(label.recordLabel) + " will take a " + withDecimals(offer.tempPercentageRate * 100, 0) +
         "% cut on all album, streaming, tour and merchandise revenue. This is non-negotiable.\n\nIn exchange, you "
         "will have complete access to our studio (currently rated " +
         std::to_string(offer.tempStudioScore) + "), our marketing team (" + label.marketingPower +
         ") and receive a virality boost of " + std::to_string(offer.tempViralityScore) + " for all releases.";
}

std::string offerExpectations(const ContractOffer& offer) {
  return std::string("As per our agreement, ") + recordLabelOf(offer.contractLevel).recordLabel +
         " expects the following terms to be met within " + std::to_string(offer.tempEndDate - offer.tempStartDate) +
         " weeks.\nFailure to meet the terms outlined below before the contract ends, will result in the return of "
         "your signing bonus.";
}

ContractLabel contractOf(const GameState& state, const ContractOffer& offer) {
  ContractLabel contract;
  contract.recordLabel = recordLabelOf(offer.contractLevel).recordLabel;
  contract.initialCash = static_cast<double>(offer.tempCash);
  contract.numberOfEP = offer.tempEp;
  contract.numberOfLP = offer.tempLp;
  contract.numberOfSongs = offer.tempSongs;
  contract.labelPercentageRate = offer.tempPercentageRate;
  contract.labelStreamingRate = offer.tempStreamingRate;
  contract.marketingScore = static_cast<double>(offer.tempMarketingScore);
  contract.viralityScore = static_cast<double>(offer.tempViralityScore);
  contract.studioScore = offer.tempStudioScore;
  contract.contractStartWeek = state.weekNumberForTracking + 1;
  contract.contractEndWeek = offer.tempEndDate;
  contract.albumPricing = offer.tempAlbumPricing;
  contract.featureDiscounts = offer.tempFeatureDiscount;
  contract.tourTicketCost = static_cast<double>(offer.tempTourTicketCost);
  return contract;
}

Outcome signContract(Game& game) {
  GameState& state = game.state;
  if (state.underContract != 0 || state.isLabelLaunched >= 1 || game.launch.contractOfferState != 2) return {};
  game.launch.contractOfferState = 0;
  const ContractOffer& offer = game.launch.contractOffer;
  state.underContract = 1;
  state.streamingPayRate = offer.tempStreamingRate;
  state.youViewStreamingRate = offer.tempViewingRates;
  state.contractViralityBoost = offer.tempViralityScore;
  state.contractMarketingBoost = offer.tempMarketingScore;
  state.contractAlbumPricing = offer.tempAlbumPricing;
  state.contractStudioScore = offer.tempStudioScore;
  state.contractFeatureDiscount = offer.tempFeatureDiscount;
  state.albumProductionCosts = 0;
  earn(game, {.dollars = static_cast<double>(offer.tempCash)});
  state.saveAllContractLabelList.append(contractOf(state, offer));
  game.save(&GameState::saveAllContractLabelList, &GameState::underContract, &GameState::streamingPayRate,
            &GameState::youViewStreamingRate, &GameState::contractViralityBoost, &GameState::contractMarketingBoost,
            &GameState::contractAlbumPricing, &GameState::contractStudioScore, &GameState::contractFeatureDiscount,
            &GameState::albumProductionCosts);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
