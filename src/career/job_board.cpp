#include "career/job_board.h"

#include <algorithm>
#include <array>

#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr std::array<JobList, 5> jobs = {{
    {"FAST FOOD WORKER", 10, 320},
    {"LAWN MOWER", 12, 350},
    {"RETAIL ASSOCIATE", 8, 300},
    {"SERVER", 15, 400},
    {"BABYSIT", 13, 375},
}};

constexpr int64_t mostJobs = 5;
constexpr int64_t shortestContract = 4;
constexpr int64_t longestContract = 20;

}  // namespace

std::string jobPayRange() {
  const auto [least, most] = std::minmax_element(
      jobs.begin(), jobs.end(), [](const JobList& a, const JobList& b) { return a.jobPay < b.jobPay; });
  return currency(least->jobPay) + " to " + currency(most->jobPay);
}

Outcome enterJobBoard(Game& game) {
  if (!hasEnergy(game.state, jobBoardCost)) return bounce();
  pay(game, jobBoardCost);
  stateChanged(game);
  return {};
}

std::vector<JobOffer> drawJobBoard(Random& random) {
  std::vector<JobOffer> board;
  const int64_t count = random.integer(0, mostJobs);
  for (int64_t row = 0; row < count; ++row) {
    const JobList& job = random.element(jobs);
    board.push_back({job, random.integer(shortestContract, longestContract)});
  }
  return board;
}

Outcome takeJob(Game& game, const JobOffer& offer) {
  GameState& state = game.state;
  if (state.weeklyJobContractRemaining > 0) {
    return refuse<"⏳ Contract Signed ⏳">("\nYou already have an existing contract in place for " +
                                         std::to_string(state.weeklyJobContractRemaining) + " more week(s).");
  }
  state.weeklyEnergyCost = offer.job.energyCost;
  state.weeklyJobIncome = offer.job.jobPay;
  state.weeklyJobContractRemaining = offer.weeks;
  game.save(&GameState::weeklyEnergyCost, &GameState::weeklyJobIncome, &GameState::weeklyJobContractRemaining);
  stateChanged(game);
  return success();
}

void advanceJobContract(Game& game) {
  GameState& state = game.state;
  if (state.weeklyJobContractRemaining < 1) {
    state.weeklyJobIncome = 0;
    state.weeklyEnergyCost = 0;
  } else {
    state.weeklyJobContractRemaining -= 1;
  }
  game.save(&GameState::weeklyJobContractRemaining, &GameState::totalCashAvailable, &GameState::weeklyJobIncome,
            &GameState::weeklyEnergyCost);
}

}  // namespace backbeat
