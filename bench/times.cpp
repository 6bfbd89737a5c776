#include "times.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <utility>

namespace backbeat {

namespace {

constexpr const char* quartile = "quartile";
bool countsProcessorTime = false;

/// Seconds since some moment.
double now() {
  if (!countsProcessorTime) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  }
  timespec spent{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
  return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) / 1e9;
}

class Keeper final : public benchmark::BenchmarkReporter {
 public:
  explicit Keeper(Times& times) : times_(times) {}
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name != quartile) continue;
      times_[run.run_name.function_name] = run.GetAdjustedRealTime();
      std::fprintf(stderr, "%-28s %10.4f ms\n", run.run_name.function_name.c_str(), run.GetAdjustedRealTime());
    }
  }

 private:
  Times& times_;
};

}  // namespace

void countProcessorTime() { countsProcessorTime = true; }

void measure(const std::string& name, int repetitions, Step before, Step step, Step after) {
  const auto run = [=](benchmark::State& state) {
    for (auto _ : state) {
      before();
      const double start = now();
      step();
      const double took = now() - start;
      after();
      state.SetIterationTime(took);
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Iterations(1)
      ->Repetitions(repetitions)
      ->ReportAggregatesOnly()
      ->ComputeStatistics(quartile, firstQuartile)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

void measure(const std::string& name, int repetitions, Step step) {
  const Step nothing = [] {};
  measure(name, repetitions, nothing, std::move(step), nothing);
}

double firstQuartile(const std::vector<double>& values) {
  std::vector<double> sorted = values;
  std::sort(sorted.begin(), sorted.end());
  return sorted[sorted.size() / 4];
}

void runAll(Times& times) {
  Keeper keeper(times);
  benchmark::RunSpecifiedBenchmarks(&keeper);
  benchmark::ClearRegisteredBenchmarks();
}

}  // namespace backbeat
