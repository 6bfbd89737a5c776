#include <cmath>

#include "career/contract_offers.h"
#include "career/job_board.h"
#include "career/lifestyle.h"
#include "career/studio.h"
#include "career/traits.h"
#include "core/money.h"
#include "play/figures.h"

namespace backbeat {

namespace {

ContractLabel contract(OwnValues& own) {
  ContractLabel label = own.record<ContractLabel>();
  label.contractId = 0;
  label.recordLabel = "Harbour Lights";
  label.numberOfEP = 10;
  label.epReleased = 4;
  label.numberOfLP = 22;
  label.lpReleased = 14;
  label.numberOfSongs = 60;
  label.songsReleased = 19;
  label.labelPercentageRate = 0.37;
  label.labelStreamingRate = 0.0043;
  label.viralityScore = 16;
  label.marketingScore = 64;
  label.studioScore = 74;
  label.featureDiscounts = 0.79;
  label.albumPricing = 8.99;
  return label;
}

void furnish(GameState& state, OwnValues& own) {
  int64_t level = 21;
  for (const Trait& trait : traits) {
    state.*trait.level = level += 2;
    state.*trait.cost = (level + 15) * trait.energyPerLevel;
  }
  level = 3;
  for (const StudioPart& part : studioParts) state.*part.level = level += 3;
  state.underContract = 1;
  state.weeklyJobContractRemaining = 14;
  state.totalEnergyAvailable = 20'001;
  state.totalEnergyMax = 21'013;
  state.youViewStreamingRate = 0.0067;
  ContractLabel label = contract(own);
  label.contractStartWeek = state.weekNumberForTracking - 9;
  label.contractEndWeek = state.weekNumberForTracking + 37;
  state.saveAllContractLabelList.append(label);
  Matches match = own.record<Matches>();
  match.relationshipState = 1;
  match.weekMatched = match.weekStartedDating = state.weekNumberForTracking - 211;
  match.timeToBirth = -1;
  state.saveAllMatchesList.append(match);
}

const WeeklyLineItem& itemOf(const GameState& state, int64_t code) {
  const auto& items = state.saveAllWeeklyLineItems;
  return items[items.find([&](const WeeklyLineItem& item) { return item.typeOfExpense == code; })];
}

int64_t weeklyEnergyCosts(const GameState& state) {
  return state.weeklyEnergyCost + state.onTourEnergyCost + state.openLabelEnergyCost + state.merchEnergyCost +
         state.childEnergyCost;
}

Standings lifeFigures(Game& twin) {
  const GameState& state = twin.state;
  const WeeklyLineItem& food = itemOf(state, expense::food);
  const WeeklyLineItem& fashion = itemOf(state, expense::fashion);
  const double living = food.amount + fashion.amount + itemOf(state, expense::basicNeeds).amount;
  return {{"Traits", "", "goToMyMusic"},
          {"Traits: subtitle", "Best: Directing " + std::to_string(state.directing)},
          {"My Studio", std::to_string(studioRating(state)), "goToMyStudio"},
          {"Job Board", "", "goToJobBoard"},
          {"Job Board: subtitle", currency(state.weeklyJobIncome) + "/week · 14 weeks left"},
          {"Job Board: price", priceText(jobBoardCost)},
          {"Relationship", "", "goToRelationshipHome"},
          {"Relationship: subtitle", state.saveAllMatchesList[0].name + " · Dating"},
          {"FXY", "", "goToFXYDating"},
          {"Children", "1", "goToChildList"},
          {"Children: subtitle", state.saveAllChildList[0].name + ", 18 years old"},
          {"Children: note", std::to_string(state.childEnergyCost) + " energy a week"},
          {"Food", "-" + currency(food.amount), "goToLifestyleChoices 0"},
          {"Food: note", "+" + std::to_string(food.energyBoost) + " max energy"},
          {"Fashion", "-" + currency(fashion.amount), "goToLifestyleChoices 1"},
          {"Fashion: note", "+" + std::to_string(fashion.energyBoost) + " virality"},
          {"Health", "", "goToLifestyleChoices 2"},
          {"Home", "", "goToLifestyleChoices 3"},
          {"Transportation", "", "goToLifestyleChoices 4"},
          {"Motors", currency(470'000 * 0.9), "goToTransportationOptions"},
          {"Motors: subtitle", state.saveAllTransportationOwnedList[0].title},
          {"Energy", std::to_string(state.totalEnergyMax - weeklyEnergyCosts(state)), "goToEnergyTransparency"},
          {"Living", currency(-living), "goToExpenseScreen"}};
}

Standings traitFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {
      {"Virality: subtitle", "+" + std::to_string(state.fashionViralityBonus) + " from your style"},
      {"text",
       "In a department your level counts twice, beside the ratings of its staff. All five go to 50, "
       "and the higher they are, the better those who want to work for you."}};
  for (const Trait& trait : traits) {
    const std::string where(trait.title);
    const int64_t cost = state.*trait.cost;
    standings.push_back({where, std::to_string(state.*trait.level)});
    standings.push_back({where + ": note", "next " + std::to_string(cost / trait.energyPerLevel)});
    if (trait.effect.front() == '+') standings.push_back({where + ": subtitle", std::string(trait.effect)});
    standings.push_back({where + ": price", priceText({cost, 0})});
    standings.push_back({where + ": share", shareText(static_cast<double>(state.*trait.level) /
                                                      static_cast<double>(trait.needsLabel ? 50 : 110))});
  }
  return standings;
}

Standings studioFigures(Game& twin) {
  const GameState& state = twin.state;
  const int64_t rating = studioRating(state);
  const std::string total = std::to_string(rating);
  Standings standings = {
      {"Studio rating", total + " / 100"},
      {"Studio rating: share", shareText(static_cast<double>(rating) / 100)},
      {"text", "Your studio has a total rating of " + total + " and can be rented out daily for up to " +
                   currency(static_cast<double>(studioRentalCeiling(rating))) + "."},
      {"text (2)", "This studio has a max capacity of " + std::to_string(state.studioCapacity) + " artists."}};
  for (const StudioPart& part : studioParts) {
    const std::string where(part.title);
    const int64_t level = state.*part.level;
    standings.push_back({where + ": subtitle", "Level " + std::to_string(level) + " of 20"});
    standings.push_back({where + ": price", currency(static_cast<double>(level) * part.basePrice)});
    standings.push_back({where + ": share", shareText(static_cast<double>(level) / 20)});
  }
  return standings;
}

Standings jobFigures(Game& twin) {
  Standings standings = {
      {"text", "Your contract runs for 14 more weeks at " + currency(twin.state.weeklyJobIncome) + " a week."}};
  for (const JobOffer& offer : drawJobBoard(twin.random)) {
    const std::string title(offer.job.jobTitle);
    standings.push_back({title, "-" + std::to_string(offer.job.energyCost)});
    standings.push_back({title + ": subtitle", "+" + std::to_string(std::llround(offer.job.jobPay)) + "/week | " +
                                                   std::to_string(offer.weeks) + "/week contract"});
  }
  return standings;
}

Standings choiceFigures(const GameState& state, int64_t code, const std::string& noun) {
  const LifestyleCategory& category = lifestyleCategories[static_cast<size_t>(code)];
  const WeeklyLineItem& item = itemOf(state, code);
  const std::string now = std::string(category.title) + " Weekly Expenses: ";
  Standings standings = {{now, currency(item.amount)}, {now + ": note", "+" + std::to_string(item.energyBoost) + noun}};
  for (const LifestyleOption& option : category.options) {
    const std::string where(option.title);
    standings.push_back({where, "+" + std::to_string(option.energyBoost)});
    standings.push_back({where + ": subtitle", currency(option.cost) + " a week"});
    standings.push_back({where + ": price", currency(option.cost)});
  }
  return standings;
}

Standings energyFigures(Game& twin) {
  const GameState& state = twin.state;
  const auto cost = [](int64_t energy) { return std::to_string(-energy); };
  const auto gain = [](int64_t energy) { return "+" + std::to_string(energy); };
  int64_t lifestyle = 0;  // fashion and the tax of a house count too: intended
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    const int64_t code = item.typeOfExpense;
    if (code <= 9 || (code >= expense::firstProperty && code <= expense::lastProperty)) lifestyle += item.energyBoost;
  }
  return {{"Now", std::to_string(state.totalEnergyAvailable)},
          {"Ceiling", std::to_string(state.totalEnergyMax)},
          {"Next week", std::to_string(state.totalEnergyMax - weeklyEnergyCosts(state))},
          {"Children ", cost(state.childEnergyCost)},
          {"Job (14 weeks left) ", cost(state.weeklyEnergyCost)},
          {"Merch ", cost(state.merchEnergyCost)},
          {"On Tour ", cost(state.onTourEnergyCost)},
          {"Record Label ", cost(state.openLabelEnergyCost)},
          {"Aging (-1/yr) ", "-26"},
          {"Breakup Drama ", cost(state.energyLossExDrama)},
          {"Child Abandonment ", cost(state.childAbandonmentEnergyLoss)},
          {"Annual Checkup ", gain(state.annualCheckupTotal)},
          {"Lifestyle ", gain(lifestyle)},
          {"Garage ", gain(state.saveAllTransportationOwnedList[0].energyBonus)},
          {"Relationship ", gain(state.saveAllMatchesList[0].energyBonus)}};
}

/// What both the offer and the contract tell of a deal beside what an artist has alone.
Standings termFigures(const ContractLabel& deal, double viewingRate) {
  const auto pair = [&](const std::string& term, const char* alone, const std::string& with) {
    return Standings{{term + ": On your own", alone}, {term + ": " + deal.recordLabel, with}};
  };
  const auto boost = [](double score) { return std::to_string(static_cast<int64_t>(score)); };
  return pair("Label's share", "0%", withDecimals(deal.labelPercentageRate * 100, 0) + "%") +
         pair("Per stream", "$0.0010", "$" + withDecimals(deal.labelStreamingRate, 4)) +
         pair("Per video view", "$0.0050", "$" + withDecimals(viewingRate, 4)) +
         pair("Virality of a release", "+0", "+" + boost(deal.viralityScore)) +
         pair("Marketing of a new song", "Yours", boost(deal.marketingScore)) +
         pair("Label studio", "–", std::to_string(deal.studioScore)) +
         pair("Guests at", "100%", withDecimals(deal.featureDiscounts * 100, 0) + "%") +
         pair("Album price", "$6.99", price(deal.albumPricing)) + pair("Cost of an album", "$2.99", "$0.00") +
         pair("Tours, cost a seat", "No tours", currency(deal.tourTicketCost));
}

Standings offerFigures(Game& twin) {
  drawContractOffer(twin);
  const ContractOffer& offer = twin.launch.contractOffer;
  const RecordLabel& label = recordLabelOf(offer.contractLevel);
  return Standings{{"cover", label.recordLabel},
                   {"cover: text",
                    std::string(label.marketingPower) + " label\n$" + abbreviated(label.revenueLabel) + " a year"},
                   {"text", offerGreeting(offer)},
                   {"text (2)", offerDeal(offer)},
                   {"text (3)", offerExpectations(offer)},
                   {"Signing bonus", currency(static_cast<double>(offer.tempCash))},
                   {"Their share", withDecimals(offer.tempPercentageRate * 100, 0) + "%"},
                   {"Deadline", counted(offer.tempEndDate - offer.tempStartDate, "week")},
                   {"EPs", std::to_string(offer.tempEp)},
                   {"LPs", std::to_string(offer.tempLp)},
                   {"Songs", std::to_string(offer.tempSongs)}} +
         termFigures({.recordLabel = label.recordLabel,
                      .labelPercentageRate = offer.tempPercentageRate,
                      .labelStreamingRate = offer.tempStreamingRate,
                      .marketingScore = static_cast<double>(offer.tempMarketingScore),
                      .viralityScore = static_cast<double>(offer.tempViralityScore),
                      .studioScore = offer.tempStudioScore,
                      .albumPricing = offer.tempAlbumPricing,
                      .featureDiscounts = offer.tempFeatureDiscount,
                      .tourTicketCost = static_cast<double>(offer.tempTourTicketCost)},
                     offer.tempViewingRates);
}

Standings contractFigures(Game& twin) {
  const ContractLabel& deal = twin.state.saveAllContractLabelList[0];
  return Standings{{"subtitle", "Contract (37 Weeks Left)"},
                   {"text", "6 EPs, 8 LPs and 41 songs in 37 weeks"},
                   {"EPs", "4 of 10"},
                   {"EPs: share", shareText(4.0 / 10)},
                   {"LPs", "14 of 22"},
                   {"LPs: share", shareText(14.0 / 22)},
                   {"Songs", "19 of 60"},
                   {"Songs: share", shareText(19.0 / 60)},
                   {"text (2)", "Leaving now means paying back the signing bonus of " + currency(deal.initialCash) +
                                    ", also when your cash does not reach. What is out keeps the rates it was made "
                                    "with."}} +
         termFigures(deal, twin.state.youViewStreamingRate);
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "life", .figures = lifeFigures},
      {.segue = "goToMyMusic", .figures = traitFigures},
      {.segue = "goToMyStudio", .figures = studioFigures},
      {.segue = "goToJobBoard", .figures = jobFigures},
      {.segue = "goToLifestyleChoices",
       .argument = "0",
       .figures = [](Game& twin) { return choiceFigures(twin.state, expense::food, " max energy"); }},
      {.segue = "goToLifestyleChoices",
       .argument = "1",
       .figures = [](Game& twin) { return choiceFigures(twin.state, expense::fashion, " virality"); }},
      {.segue = "goToEnergyTransparency", .figures = energyFigures},
      {.segue = "goToContractOffer",
       .figures = offerFigures,
       .before =
           [](Game& game) {
             game.launch.contractOfferState = 1;
             game.state.underContract = 0;
             game.state.isLabelLaunched = 0;
           }},
      {.segue = "goToSignedContract", .figures = contractFigures},
  };
}

const FiguresOf career{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
