#include "wealth/venture_rounds.h"

#include <algorithm>
#include <array>

#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "core/short_money.h"
#include "wealth/venture_pools.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

struct RoundTerms {
  std::string_view name;
  int64_t percent = 0;   ///< to which up to `mostLuck` are added
  double leastStep = 1;  ///< of the valuation, against the one before
  double mostStep = 1;
};
constexpr std::array<RoundTerms, 4> rounds = {
    {{"Seed", 8}, {"Series A", 6, 1.1, 1.8}, {"Series B", 4, 1.05, 1.6}, {"Series C", 2, 1.0, 1.5}}};
constexpr int64_t mostLuck = 8;
constexpr int64_t fewestWeeksToSeriesA = 4;
constexpr int64_t mostWeeksToSeriesA = 7;
constexpr int64_t weeksToNextRound = 5;
constexpr int64_t noMoreRounds = -1;

/// Who buys what of a round, in percent of the shares before it.
struct Buyers {
  int64_t artist = 0;
  int64_t lead = 0;
  double paid = 0;  ///< dollars, by the artist

  int64_t both() const { return artist + lead; }
};

const RoundTerms& termsOf(int64_t round) {
  return rounds[static_cast<size_t>(std::clamp(round, funding_round::seed, funding_round::seriesC))];
}

int64_t drawPercent(Random& random, int64_t round, int64_t remaining) {
  return std::min(termsOf(round).percent + random.integer(0, mostLuck), std::clamp<int64_t>(remaining, 0, 100));
}

int64_t partOf(int64_t amount, int64_t percent) { return multiply(percent, amount) / 100; }

int64_t leadPercent(const FundingOffer& offer) { return std::max<int64_t>(1, offer.percent / 2); }

/// The startup of a later round, while that is open.
const Venture* raising(const GameState& state, const FundingOffer& offer) {
  const auto position = venturePosition(state, offer.businessId);
  if (!position) return nullptr;
  const Venture& venture = state.saveAllVentureInvestments[*position];
  return isRoundDue(venture) && venture.currentFundingRound + 1 == offer.round ? &venture : nullptr;
}

bool isOpen(const GameState& state, const FundingOffer& offer) {
  if (offer.round > funding_round::seed) return raising(state, offer) != nullptr;
  return companyWithId(offer.businessId) && !venturePosition(state, offer.businessId);
}

Venture ventureOf(const GameState& state, const Company& company) {
  Venture venture;
  venture.businessId = company.businessId;
  venture.businessName = company.businessName;
  venture.businessTagline = company.businessTagline;
  venture.businessDescription = company.businessDescription;
  venture.businessImage = company.businessImage;
  venture.currentFundingRound = funding_round::seed;
  venture.lastValuation = company.initialValuation;
  venture.totalOutstandingShares = company.totalShares;
  venture.weekSinceUpdate = state.weekNumberForTracking;
  return venture;
}

/// The first round sells what is there.
void sellSeed(Venture& venture, const Buyers& buyers) {
  venture.totalSharesOwned = partOf(venture.totalOutstandingShares, buyers.artist);
  venture.percentageOwned = buyers.artist;
  venture.percentageRemaining = 100 - buyers.both();
  venture.shareholderPercentage.push_back(buyers.lead);
}

/// A later one issues new shares, which make everybody's part smaller. What is cut off the percentages is nobody's.
void issueShares(Venture& venture, const FundingOffer& offer, const Buyers& buyers) {
  const int64_t before = venture.totalOutstandingShares;
  const int64_t issued = partOf(before, buyers.both());
  const int64_t bought = partOf(before, buyers.artist);
  const int64_t after = before + issued;
  const auto diluted = [&](int64_t percent) {
    return after > 0 ? multiply(std::clamp<int64_t>(percent, 0, 100), before) / after : 0;
  };
  const auto percentOf = [&](int64_t shares) { return after > 0 ? multiply(100, shares) / after : 0; };
  venture.totalOutstandingShares = after;
  venture.totalSharesOwned += bought;
  venture.percentageOwned = percentOf(venture.totalSharesOwned);
  venture.percentageRemaining = diluted(venture.percentageRemaining);
  for (int64_t& percent : venture.shareholderPercentage) percent = diluted(percent);
  venture.shareholderPercentage.push_back(percentOf(issued - bought));
  venture.lastValuation = offer.capitalRaiseThisRound + partOf(offer.capitalRaiseThisRound, buyers.both());
  venture.currentFundingRound = offer.round;
}

int64_t drawWeeksToNextRound(Random& random, int64_t round) {
  if (round == funding_round::seed) return random.integer(fewestWeeksToSeriesA, mostWeeksToSeriesA);
  return round < funding_round::seriesC ? weeksToNextRound : noMoreRounds;
}

/// Names the lead investor and writes the round down, for the world too. The caller saves the portfolio.
std::string closeRound(Game& game, size_t position, const FundingOffer& offer, const Buyers& buyers) {
  const std::string lead(game.random.element(leadInvestors));
  const int64_t weeksToNext = drawWeeksToNextRound(game.random, offer.round);
  auto& ventures = game.state.saveAllVentureInvestments;
  ventures.update(position, [&](Venture& venture) {
    if (offer.round == funding_round::seed) {
      sellSeed(venture, buyers);
    } else {
      issueShares(venture, offer, buyers);
    }
    venture.fundingRoundHistory.push_back(partOf(offer.capitalRaiseThisRound, buyers.both()));
    venture.shareholderName.push_back(lead);
    venture.investmentAmount += buyers.paid;
    venture.timeUntilNextRaise = weeksToNext;
    venture.news.push_back(venture.businessName + ": " + lead + " entered a " + std::to_string(buyers.lead) +
                           "% position for " +
                           abbreviatedDollars(static_cast<double>(partOf(offer.capitalRaiseThisRound, buyers.lead))));
  });
  const Venture& venture = ventures[position];
  chirpAs(game, venture,
          venture.businessName + "'s " + roundName(offer.round) + " round led by " + lead + " 🎉. " +
              std::string(game.random.element(roundAnnouncements)));
  return lead;
}

}  // namespace

std::string roundName(int64_t round) { return std::string(termsOf(round).name); }

FundingOffer drawPitch(Random& random, const Company& company) {
  return {.businessId = company.businessId,
          .round = funding_round::seed,
          .percent = drawPercent(random, funding_round::seed, 100),
          .capitalRaiseThisRound = company.initialValuation,
          .shares = company.totalShares};
}

FundingOffer drawRaise(Random& random, const Venture& venture) {
  const int64_t round = venture.currentFundingRound + 1;
  const int64_t percent = drawPercent(random, round, venture.percentageRemaining);
  const double step = random.uniformDouble(termsOf(round).leastStep, termsOf(round).mostStep);
  return {.businessId = venture.businessId,
          .round = round,
          .percent = percent,
          .capitalRaiseThisRound = truncate(static_cast<double>(venture.lastValuation) * step),
          .shares = venture.totalOutstandingShares};
}

bool isRoundDue(const Venture& venture) {
  return isRunning(venture) && venture.currentFundingRound < funding_round::seriesC && venture.timeUntilNextRaise == 0;
}

Price costOf(const FundingOffer& offer, int64_t percent) {
  return {.dollars = static_cast<double>(percent) / 100 * static_cast<double>(offer.capitalRaiseThisRound)};
}

int64_t sharesFor(const FundingOffer& offer, int64_t percent) { return partOf(offer.shares, percent); }

StakeAfter stakeAfter(const GameState& state, const FundingOffer& offer, int64_t percent) {
  const Venture* held = raising(state, offer);
  const int64_t lead = percent == 0 ? offer.percent : leadPercent(offer);
  const int64_t issued = held ? partOf(offer.shares, percent + lead) : 0;
  const double outstanding = static_cast<double>(offer.shares + issued);
  const double owned = static_cast<double>((held ? held->totalSharesOwned : 0) + sharesFor(offer, percent));
  const double putIn = (held ? held->investmentAmount : 0) + costOf(offer, percent).dollars;
  if (outstanding <= 0 || owned <= 0) return {};
  return {.percent = owned / outstanding * 100,
          .dollars = owned / static_cast<double>(offer.shares) * static_cast<double>(offer.capitalRaiseThisRound),
          .paysAbove = putIn / (owned / outstanding)};
}

Outcome invest(Game& game, const FundingOffer& offer, int64_t percent) {
  GameState& state = game.state;
  if (!isOpen(state, offer) || percent < 1) return {};
  const Price cost = costOf(offer, percent);
  if (!hasCash(state, cost)) return noCash("\nYou do not have enough cash to enter this round.");
  pay(game, cost);
  if (offer.round == funding_round::seed) {
    state.saveAllVentureInvestments.append(ventureOf(state, *companyWithId(offer.businessId)));
  }
  const size_t position = *venturePosition(state, offer.businessId);
  const std::string lead =
      closeRound(game, position, offer, {.artist = percent, .lead = leadPercent(offer), .paid = cost.dollars});
  game.save(&GameState::saveAllVentureInvestments);
  stateChanged(game);
  const Venture& venture = state.saveAllVentureInvestments[position];
  return news<"🚀 You're In 🚀">("\n" + venture.businessName + "'s " + roundName(offer.round) + " round was led by " +
                               lead + ", and you own " + std::to_string(venture.percentageOwned) +
                               "% of the company now.");
}

Outcome passRound(Game& game, const FundingOffer& offer) {
  GameState& state = game.state;
  if (offer.round == funding_round::seed || !isOpen(state, offer)) return success();
  const size_t position = *venturePosition(state, offer.businessId);
  const std::string lead = closeRound(game, position, offer, {.lead = offer.percent});
  game.save(&GameState::saveAllVentureInvestments);
  stateChanged(game);
  const Venture& venture = state.saveAllVentureInvestments[position];
  return news<"🚪 Round Closed 🚪">("\n" + lead + " took all of " + venture.businessName + "'s " +
                                  roundName(offer.round) + " round. Of the company you own " +
                                  std::to_string(venture.percentageOwned) + "% now.");
}

void closeRoundWithoutArtist(Game& game, size_t position) {
  const FundingOffer offer = drawRaise(game.random, game.state.saveAllVentureInvestments[position]);
  closeRound(game, position, offer, {.lead = offer.percent});
}

}  // namespace backbeat
