// The standing weekly job, and the board where it is found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price jobBoardCost = {.energy = 5};  ///< of each visit

/// A kind of job.
struct JobList {
  std::string_view jobTitle;
  int64_t energyCost = 0;  ///< a week
  double jobPay = 0;       ///< dollars a week
};

/// What the kinds of jobs pay at least and at most, in dollars a week: "$300 to $400".
std::string jobPayRange();

/// The door of the board, where each visit is paid. Refused with too little energy: the energy figure shakes.
Outcome enterJobBoard(Game& game);

/// One row of the board.
struct JobOffer {
  JobList job;
  int64_t weeks = 0;  ///< length of the contract, 4 to 20
};

/// Draws a board of no to five jobs; two rows can offer the same kind. For each row its job is drawn, then its length.
std::vector<JobOffer> drawJobBoard(Random& random);

/// Signs for the job. Refused while another contract runs: there is no way to quit.
Outcome takeJob(Game& game, const JobOffer& offer);

/// Step 11 of the turn: the contract runs a week further. In the turn after the one in which it ran out, pay and energy
/// cost go to 0, so that a contract of n weeks pays n reports.
void advanceJobContract(Game& game);

}  // namespace backbeat
