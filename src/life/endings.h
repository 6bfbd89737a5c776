// How a relationship ends, whoever ends it.
#pragma once

#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// What a partner says when leaving: only this differs between the ways to be left.
struct Reproach {
  std::string_view face;     ///< behind the signature
  std::string_view blame;    ///< before "lost your energy bonus of ..."
  std::string_view offence;  ///< of a spouse: "sliding into DM's while we are MARRIED! "
  std::string_view waiver;   ///< of a spouse who signed a prenup
  bool endsAll = false;      ///< whoever else the artist is with leaves too
};
inline constexpr Reproach caughtWithAnother = {"😭", "You are a heartbreaker and",
                                               "sliding into DM's while we are MARRIED! ",
                                               "you can keep your DIRTY money!", true};
inline constexpr Reproach leftAlone = {"😭", "You let our relationship die by putting in ZERO effort. You",
                                       "ignoring my existence. ", "you can keep your DIRTY money!"};
inline constexpr Reproach askedForCash = {"😡", "You", "using me. ", "I don't want your DIRTY money!"};

/// The partner leaves with that line: energy, drama and, in a divorce, the settlement follow, which may leave a debt.
Outcome partnerLeaves(Game& game, const std::string& line, const Reproach& reproach);

/// The artist ends it. A marriage ends by a divorce, whose drama is always the same; before it `drama` points are
/// taken.
struct Parting {
  std::string line;
  int64_t drama = 0;
};
void leavePartner(Game& game, const Parting& parting);

/// What a divorce takes now: half of all that the artist owns, and nothing with a prenup. In dollars; below 0 for half
/// of a debt.
double settlement(const GameState& state);
/// "$1.2M"
std::string settlementText(double dollars);

inline constexpr int64_t divorceDrama = 2;

}  // namespace backbeat
