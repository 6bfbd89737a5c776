// Rounds of funding: what is offered, what it buys, and what a round does to those who hold shares already.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "wealth/company_catalogue.h"

namespace backbeat {

/// Values of `Venture::currentFundingRound`.
namespace funding_round {
inline constexpr int64_t seed = 0;
inline constexpr int64_t seriesC = 3;
}  // namespace funding_round

/// "Seed", "Series A", "Series B", "Series C"; the nearest for a round that is none of them.
std::string roundName(int64_t round);

/// A round that is open. Never saved: it lasts as long as the visit.
struct FundingOffer {
  int64_t businessId = 0;
  int64_t round = 0;                  ///< that is sold: seed for a pitch
  int64_t percent = 0;                ///< of the shares, the most that the artist can have
  int64_t capitalRaiseThisRound = 0;  ///< dollars: the valuation at which shares are sold
  int64_t shares = 0;                 ///< of the company, before the round
};

/// A pitch. The percentage is drawn.
FundingOffer drawPitch(Random& random, const Company& company);
/// The next round of a startup in the portfolio. The percentage is drawn, then the step of the valuation.
FundingOffer drawRaise(Random& random, const Venture& venture);

/// Whether the startup looks for money again.
bool isRoundDue(const Venture& venture);

/// What so many percent cost, and how many shares they are.
Price costOf(const FundingOffer& offer, int64_t percent);
int64_t sharesFor(const FundingOffer& offer, int64_t percent);

/// How the artist's part stands once a round has closed.
struct StakeAfter {
  double percent = 0;    ///< of all shares, uncut
  double dollars = 0;    ///< at the price of the round
  double paysAbove = 0;  ///< dollars: what the whole company has to bring for all that was put in
};
/// With so many percent bought; 0 for a round that is left to the others.
StakeAfter stakeAfter(const GameState& state, const FundingOffer& offer, int64_t percent);

/// Buys so many percent; a lead investor, drawn, takes half of what is offered beside the artist, and the company posts
/// about it. Refused without the cash. Nothing for a round that is over or for no percent at all.
Outcome invest(Game& game, const FundingOffer& offer, int64_t percent);

/// Leaves a round to the others: a pitch is forgotten, a later round closes all the same, and a lead investor takes
/// what was offered.
Outcome passRound(Game& game, const FundingOffer& offer);

/// The next round of the startup at that position closes while nobody asked the artist: what is drawn for a raise is
/// drawn, then all as if it was left to the others. The caller saves the portfolio.
void closeRoundWithoutArtist(Game& game, size_t position);

}  // namespace backbeat
