#include "turn/news.h"

#include <cmath>

#include "career/job_board.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

constexpr int64_t worryingWeeks = 8;
constexpr double greatDebt = 250;  ///< dollars

/// The greatest step that the debt passed this week, or 0.
double passedDebt(double before, double now) {
  double passed = 0;
  for (double step = greatDebt; step <= now; step *= 2) {
    if (step > before) passed = step;
  }
  return passed;
}

/// Owing the rent is how many begin: it leads no report. A debt that grows does, each time at twice the height.
void addDebt(const Game& game, std::vector<News>& news) {
  const double before = -game.turn.before.cash;
  const double debt = -game.state.totalCashAvailable;
  if (debt <= 0 || debt <= before) return;
  const bool isGreat = passedDebt(before, debt) > 0;
  if (!isGreat && before > 0) return;
  const bool works = game.state.weeklyJobContractRemaining > 0;
  news.push_back(
      {.kind = News::Kind::ended,
       .rank = isGreat ? 400 : 240,
       .key = isGreat ? "debt" : "owes",
       .picture = icon(isGreat ? "warning" : "cash"),
       .kicker = isGreat ? "The debt grows" : "The account is below zero",
       .headline = isGreat ? "You are " + currency(debt) + " in debt" : "You owe " + currency(debt),
       .text = works ? "Weeks go on, but nothing can be bought" : "A job brings " + jobPayRange() + " a week",
       .tone = isGreat ? Tone::bad : Tone::plain});
}

}  // namespace

std::optional<int64_t> weeksUntilDebt(const GameState& state) {
  const double net = standingWeeklyNet(state);
  if (net >= 0) return std::nullopt;
  return truncate(std::floor(std::max(state.totalCashAvailable, 0.0) / -net));
}

void addTurnNeeds(const Game& game, std::vector<Need>& needs) {
  const std::optional<int64_t> weeks = weeksUntilDebt(game.state);
  if (!weeks || *weeks > worryingWeeks) return;
  const GameState& state = game.state;
  Need need{.priority = *weeks <= 2 ? 200 : 120,
            .picture = icon("cash"),
            .title = "Money for " + counted(*weeks, "week"),
            .subtitle = currency(-standingWeeklyNet(state)) + " a week goes out before any song pays",
            .segue = "goToExpenseScreen"};
  if (*weeks == 0) need.title = "Money runs out this week";
  if (state.totalCashAvailable < 0) need.title = "You owe " + currency(-state.totalCashAvailable);
  if (state.weeklyJobContractRemaining < 1) {
    if (inFirstWeeks(state)) need.title = "A job pays for the start";
    need.subtitle = "A job brings " + jobPayRange() + " a week";
    need.segue = "goToJobBoard";
    need.price = jobBoardCost;
  }
  needs.push_back(std::move(need));
}

void addTurnNews(const Game& game, std::vector<News>& news) { addDebt(game, news); }

}  // namespace backbeat
