#include "turn/news.h"

#include <cmath>

#include "career/job_board.h"
#include "core/money.h"
#include "core/numbers.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

constexpr int64_t worryingWeeks = 8;

}  // namespace

std::optional<int64_t> weeksUntilDebt(const GameState& state) {
  const double net = standingWeeklyNet(state);
  if (net >= 0) return std::nullopt;
  return truncate(std::floor(std::max(state.totalCashAvailable, 0.0) / -net));
}

void addTurnNeeds(const Game& game, std::vector<Need>& needs) {
  const std::optional<int64_t> weeks = weeksUntilDebt(game.state);
  if (!weeks || *weeks > worryingWeeks) return;
  const bool canWork = game.state.weeklyJobContractRemaining < 1;
  const std::string loss = currency(-standingWeeklyNet(game.state)) + " a week goes out before any song pays";
  Need need{.priority = *weeks <= 2 ? 200 : 120,
            .picture = icon("cash"),
            .title = *weeks == 0 ? "The money is gone" : "Money for " + counted(*weeks, "week"),
            .subtitle = canWork ? loss + "; a job would help" : loss,
            .segue = "goToExpenseScreen"};
  if (canWork) {
    need.segue = "goToJobBoard";
    need.price = jobBoardCost;
  }
  needs.push_back(std::move(need));
}

void addTurnNews(const Game& game, std::vector<News>& news) {
  if (game.turn.before.cash < 0 || game.state.totalCashAvailable >= 0) return;
  news.push_back({.kind = News::Kind::ended,
                  .rank = 400,
                  .key = "debt",
                  .picture = icon("warning"),
                  .kicker = "The account is empty",
                  .headline = "You are " + currency(-game.state.totalCashAvailable) + " in debt",
                  .text = "Weeks go on without cash, but nothing can be bought",
                  .tone = Tone::bad});
}

}  // namespace backbeat
