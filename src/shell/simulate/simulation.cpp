#include "shell/simulate/simulation.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfAYear = 52;

/// Takes finished careers in any order and tells of them in theirs.
class InOrder {
 public:
  InOrder(std::vector<Career>& careers, const std::function<void(const Career&)>& done)
      : careers_(careers), finished_(careers.size()), done_(done) {}

  void finish(size_t number, Career career) {
    const std::lock_guard lock(mutex_);
    careers_[number] = std::move(career);
    finished_[number] = true;
    for (; next_ < finished_.size() && finished_[next_]; ++next_) done_(careers_[next_]);
  }

 private:
  std::mutex mutex_;
  std::vector<Career>& careers_;
  std::vector<bool> finished_;
  size_t next_ = 0;
  const std::function<void(const Career&)>& done_;
};

}  // namespace

Career playCareer(const StrategyEntry& strategy, uint64_t seed, int64_t years, TurnProfile* profile) {
  Career career;
  career.seed = seed;
  Player player(seed, career.problems);
  if (profile) player.observeTurns([profile](std::string_view step) { profile->enter(step); });
  const std::unique_ptr<Strategy> mind = strategy.make();
  beginCareer(player);
  for (int64_t week = 1; week <= years * weeksOfAYear; ++week) {
    mind->playWeek(player, week);
    if (week % weeksOfAYear == 0) career.years.push_back(careerYear(player.state(), week / weeksOfAYear));
  }
  career.trace = player.lines();
  career.hash = hashText(stateHash(player.state()));
  return career;
}

Simulation simulate(const SimulationPlan& plan, const std::function<void(const Career&)>& done) {
  Simulation simulation;
  const auto count = static_cast<size_t>(plan.careers);
  simulation.careers.resize(count);
  InOrder results(simulation.careers, done);
  std::vector<TurnProfile> profiles(static_cast<size_t>(std::min(plan.jobs, plan.careers)));
  std::atomic<size_t> next = 0;
  std::vector<std::thread> threads;
  for (TurnProfile& profile : profiles) {
    threads.emplace_back([&] {
      for (size_t number = next++; number < count; number = next++) {
        Career career =
            playCareer(*plan.strategy, plan.firstSeed + number, plan.years, plan.profiles ? &profile : nullptr);
        if (number > 0) career.trace = {};
        results.finish(number, std::move(career));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const TurnProfile& profile : profiles) simulation.profile.add(profile);
  return simulation;
}

}  // namespace backbeat
