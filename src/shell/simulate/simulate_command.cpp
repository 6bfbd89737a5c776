#include "shell/simulate/simulate_command.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <thread>

#include "core/money.h"
#include "shell/native/file_places.h"
#include "shell/native/terminal_text.h"
#include "shell/simulate/simulation_summary.h"

namespace backbeat {

namespace {

constexpr size_t progressColumns = 30;

/// A bar that fills up, on a terminal; nothing anywhere else.
class Progress {
 public:
  explicit Progress(int64_t all) : all_(all), shown_(isatty(STDERR_FILENO) != 0) {}

  void step() {
    ++done_;
    if (!shown_) return;
    const double share = static_cast<double>(done_) / static_cast<double>(all_);
    std::cerr << '\r' << bar(share, progressColumns) << ' ' << done_ << " of " << counted(all_, "career") << std::flush;
    if (done_ == all_) std::cerr << '\n';
  }

 private:
  int64_t all_;
  int64_t done_ = 0;
  bool shown_;
};

std::string traceText(const Career& career) {
  std::string text;
  for (const std::string& line : career.trace) text += line + "\n";
  return text;
}

/// A file that is written as the careers come in.
class Output {
 public:
  explicit Output(const std::string& path) : path_(path) {
    if (!path.empty()) file_.open(path, std::ios::binary | std::ios::trunc);
  }
  void write(const std::string& text) {
    if (!path_.empty()) file_ << text;
  }
  /// Whether all of it can be read back; says so when not.
  bool finish() {
    if (path_.empty()) return true;
    file_.flush();
    if (!file_) std::cerr << "backbeat: " << path_ << " cannot be written.\n";
    return static_cast<bool>(file_);
  }

 private:
  std::string path_;
  std::ofstream file_;
};

/// Tells what a strategy could not do, and how to see it again.
void tellProblem(const SimulationPlan& plan, const Career& career) {
  std::cerr << "backbeat: seed " << career.seed << ": " << career.problems.front();
  if (career.problems.size() > 1) std::cerr << " (and " << career.problems.size() - 1 << " more)";
  std::cerr << ". Again: backbeat simulate --strategy " << plan.strategy->name << " --careers 1 --years " << plan.years
            << " --seed " << career.seed << " --trace FILE\n";
}

SimulationPlan planFor(const SimulateOptions& options) {
  SimulationPlan plan;
  plan.strategy = strategyNamed(options.strategy);
  plan.firstSeed = options.seed;
  plan.careers = options.careers;
  plan.years = options.years;
  plan.jobs = options.jobs > 0 ? options.jobs : std::max<int64_t>(std::thread::hardware_concurrency(), 1);
  plan.profiles = options.profile;
  return plan;
}

}  // namespace

int runSimulation(const SimulateOptions& options) {
  for (const std::string& path : {options.csv, options.trace}) {
    const std::string refusal = path.empty() ? "" : targetRefusal(path, "", options.force);
    if (refusal.empty()) continue;
    std::cerr << "backbeat: " << refusal << '\n';
    return 1;
  }
  const SimulationPlan plan = planFor(options);
  Output csv(options.csv);
  Output trace(options.trace);
  csv.write(csvHead());
  if (!csv.finish() || !trace.finish()) return 1;
  Progress progress(plan.careers);
  bool stuck = false;
  const Simulation simulation = simulate(plan, [&](const Career& career) {
    csv.write(csvRows(plan, career));
    if (career.seed == plan.firstSeed) trace.write(traceText(career));
    progress.step();
    if (career.problems.empty()) return;
    stuck = true;
    tellProblem(plan, career);
  });
  std::cout << (options.json ? summaryJson(plan, simulation) : summaryText(plan, simulation));
  if (!options.trace.empty()) {
    std::cerr << "The trace in " << options.trace << " ends at " << simulation.careers.front().hash << ".\n";
  }
  if (options.profile) std::cerr << simulation.profile.text();
  std::cout.flush();
  if (!std::cout) std::cerr << "backbeat: the outcome could not be written.\n";
  return csv.finish() && trace.finish() && std::cout && !stuck ? 0 : 1;
}

}  // namespace backbeat
