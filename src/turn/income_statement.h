// What the reported week brought and cost, by kind.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Dollars of one week, line by line. The lines come from the week's records and from what stands in the ledger now;
/// job pay leaves no record and is not among them. All the streams are summed, though only the most streamed song was
/// paid: intended.
struct IncomeStatement {
  double albums = 0;
  double streams = 0;
  double touring = 0;  ///< negative for a week on the road that lost money
  double featuredStreams = 0;
  double flatFees = 0;  ///< of the guest verses agreed on in that week
  double festival = 0;
  double labelAlbums = 0;   ///< with the label's revenue bonus, as it is paid
  double labelStreams = 0;  ///< likewise
  double merch = 0;
  double videos = 0;

  double insurance = 0;
  double officeStaff = 0;
  double merchandise = 0;
  double lifestyle = 0;
  double propertyTax = 0;
  double family = 0;
  double officePerks = 0;
  double officeRent = 0;

  double income() const;
  double expenses() const;
};

IncomeStatement incomeStatement(const GameState& state);

/// Each line rounded once, as it is told: what is summed up from them agrees to the dollar.
IncomeStatement toldStatement(const GameState& state);

}  // namespace backbeat
