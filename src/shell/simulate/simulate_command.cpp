#include "shell/simulate/simulate_command.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iostream>
#include <limits>
#include <thread>

#include "core/money.h"
#include "shell/native/terminal_text.h"
#include "shell/simulate/simulation_summary.h"

namespace backbeat {

namespace {

constexpr int64_t mostCareers = 1'000'000;
constexpr int64_t mostYears = 1'000;
constexpr int64_t mostJobs = 1'024;
constexpr size_t progressColumns = 30;

/// Reads a whole number from `least` to `most`; what is wrong with the text, or "".
template <class Number>
std::string readNumber(std::string_view option, std::string_view text, Number least, Number most, Number& number) {
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc() && last == end && number >= least && number <= most) return "";
  return std::string(option) + " takes a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
         ", not \"" + std::string(text) + "\"";
}

std::string readStrategy(std::string_view name, std::string& strategy) {
  strategy = name;
  if (strategyNamed(name)) return "";
  std::string names;
  for (const StrategyEntry& each : strategies()) names += (names.empty() ? "" : ", ") + std::string(each.name);
  return "there is no strategy \"" + std::string(name) + "\", but " + names;
}

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

bool takeSimulateFlag(SimulateOptions& options, std::string_view flag) {
  if (flag == "--json") return options.json = true;
  if (flag == "--profile") return options.profile = true;
  return false;
}

std::optional<std::string> takeSimulateOption(SimulateOptions& options, std::string_view option,
                                              std::string_view value) {
  const auto number = [&](int64_t& target, int64_t most) {
    return readNumber(option, value, int64_t{1}, most, target);
  };
  if (option == "--careers") return number(options.careers, mostCareers);
  if (option == "--years") return number(options.years, mostYears);
  if (option == "--jobs") return number(options.jobs, mostJobs);
  if (option == "--strategy") return readStrategy(value, options.strategy);
  if (option == "--seed") {
    return readNumber(option, value, uint64_t{0}, std::numeric_limits<uint64_t>::max(), options.seed);
  }
  if (option != "--csv" && option != "--trace") return std::nullopt;
  (option == "--csv" ? options.csv : options.trace) = value;
  return "";
}

int runSimulation(const SimulateOptions& options) {
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
  return csv.finish() && trace.finish() && !stuck ? 0 : 1;
}

}  // namespace backbeat
