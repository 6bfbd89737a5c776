// What a launch remembers of startups: the deal on the table, this week's buyers, and what the last report did.
#pragma once

#include <cstdint>
#include <map>

namespace backbeat {

/// What the report of a week did to a startup of the portfolio.
struct VentureWeek {
  int64_t businessId = 0;
  int64_t valuationBefore = 0;  ///< dollars
  bool isRevalued = false;      ///< its valuation rose or fell
  int64_t exit = 0;             ///< as `Venture::hasExited`; 0 while it runs on
  double payout = 0;            ///< dollars that came with the exit
};

/// What a startup offers for the artist's own stake.
struct StakeOffer {
  int64_t week = 0;  ///< the absolute week in which it stands
  double rate = 0;   ///< share of the stake's value
  bool isDeclined = false;
};

struct VentureMemory {
  int64_t ventureDealKind = 0;           ///< 0 a pitch, 2 a further round of a startup in the portfolio
  int64_t ventureDealIndex = -1;         ///< into the table of companies, or into the portfolio; -1 for no deal
  std::map<int64_t, StakeOffer> offers;  ///< for stakes, by company
};

}  // namespace backbeat
