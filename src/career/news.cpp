#include "career/news.h"

#include "career/contract_terms.h"
#include "career/job_board.h"
#include "career/label_contract.h"
#include "career/traits.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr int64_t lastWeeksOfJob = 3;
constexpr int64_t lastWeeksOfContract = 4;
constexpr int64_t worthwhileLevel = 60;  ///< up to here a level of a musical skill is cheap for what it gives
constexpr size_t musicalTraits = 4;      ///< the first of the table: what every recording is made of

void addJobNeed(const GameState& state, std::vector<Need>& needs) {
  const int64_t weeks = state.weeklyJobContractRemaining;
  if (weeks >= 1 && weeks <= lastWeeksOfJob) {
    needs.push_back({.priority = 140,
                     .picture = icon("briefcase"),
                     .title = "Your job ends in " + counted(weeks, "week"),
                     .subtitle = currency(state.weeklyJobIncome) + " a week until then",
                     .segue = "goToBalanceSheet"});
  }
}

void addContractNeed(const GameState& state, std::vector<Need>& needs) {
  const size_t running = runningContract(state);
  if (running == state.saveAllContractLabelList.size()) return;
  const ContractLabel& contract = state.saveAllContractLabelList[running];
  const int64_t weeks = contractWeeksLeft(state, contract);
  if (weeks < 0 || weeks > lastWeeksOfContract) return;
  needs.push_back({.priority = 210,
                   .picture = icon("document"),
                   .title = contract.recordLabel + " waits for your music",
                   .subtitle = contractOutlook(state, contract),
                   .segue = "goToSignedContract"});
}

/// The weakest musical skill, while its next level can be paid with half of the week's energy.
void addSkillNeed(const GameState& state, std::vector<Need>& needs) {
  const Trait* weakest = &traits.front();
  for (size_t i = 1; i < musicalTraits; ++i) {
    if (state.*traits[i].level < state.*weakest->level) weakest = &traits[i];
  }
  const Price cost = traitCost(state, *weakest);
  if (state.*weakest->level >= worthwhileLevel || cost.energy * 2 > state.totalEnergyAvailable) return;
  needs.push_back({.priority = 100,
                   .picture = icon(std::string(weakest->icon)),
                   .title = std::string(weakest->title) + " to level " + std::to_string(nextLevel(state, *weakest)),
                   .subtitle = std::string(weakest->effect) + ", for " + std::to_string(cost.energy) + " energy",
                   .segue = "goToMyMusic"});
}

void addFirstJob(const Game& game, std::vector<News>& news) {
  if (!game.turn.tookFirstJob) return;
  const GameState& state = game.state;
  news.push_back({.kind = News::Kind::first,
                  .rank = 305,
                  .key = "job",
                  .picture = icon("briefcase"),
                  .kicker = "Your first job",
                  .headline = "You work for " + currency(state.weeklyJobIncome) + " a week",
                  .text = counted(state.weeklyJobContractRemaining, "week") + " to go, at " +
                          std::to_string(state.weeklyEnergyCost) + " energy each"});
}

void addContractNews(const Game& game, std::vector<News>& news) {
  const size_t running = runningContract(game.state);
  if (running == game.state.saveAllContractLabelList.size()) return;
  const ContractLabel& contract = game.state.saveAllContractLabelList[running];
  if (contract.contractStartWeek == game.turn.before.absoluteWeek + 1) {
    news.push_back({.rank = 550,
                    .key = "contract",
                    .picture = icon("label"),
                    .kicker = "A record deal",
                    .headline = "Signed with " + contract.recordLabel,
                    .text = contractOutlook(game.state, contract)});
  }
  if (contractWeeksLeft(game.state, contract) == lastWeeksOfContract) {
    news.push_back({.kind = News::Kind::ended,
                    .rank = 320,
                    .key = "contract ends",
                    .picture = icon("hourglass"),
                    .kicker = "The last month",
                    .headline = "Your contract with " + contract.recordLabel + " ends soon",
                    .text = contractOutlook(game.state, contract),
                    .tone = Tone::warning});
  }
}

}  // namespace

void addCareerNeeds(const Game& game, std::vector<Need>& needs) {
  if (game.launch.contractOfferState >= 1) {
    needs.push_back({.priority = 300,
                     .picture = icon("label"),
                     .title = "A record label wants to talk",
                     .subtitle = "It may be gone when the week ends",
                     .badge = "!",
                     .segue = "goToContractOffer"});
  }
  addContractNeed(game.state, needs);
  addJobNeed(game.state, needs);
  addSkillNeed(game.state, needs);
}

void addCareerNews(const Game& game, std::vector<News>& news) {
  addContractNews(game, news);
  addFirstJob(game, news);
  if (game.turn.before.jobWeeks < 1 || game.state.weeklyJobContractRemaining > 0) return;
  news.push_back(
      {.kind = News::Kind::ended,
       .rank = 315,
       .key = "job over",
       .picture = icon("briefcase"),
       .kicker = "Your contract has run out",
       .headline = "Your job is over",
       .text = "Its last " + currency(game.state.weeklyJobIncome) + " came this week. The Job Board in Life has others",
       .tone = Tone::warning});
}

}  // namespace backbeat
