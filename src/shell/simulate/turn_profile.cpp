#include "shell/simulate/turn_profile.h"

#include <time.h>

#include <algorithm>

#include "core/money.h"
#include "shell/native/terminal_text.h"

namespace backbeat {

namespace {

constexpr size_t nameColumns = 18;
constexpr size_t figureColumns = 12;

/// Nanoseconds that this thread has had of the processor.
int64_t threadTime() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

double microseconds(int64_t took, int64_t turns) {
  return static_cast<double>(took) / 1'000 / static_cast<double>(std::max<int64_t>(turns, 1));
}

}  // namespace

void TurnProfile::enter(std::string_view step) {
  const int64_t now = threadTime();
  if (!running_.empty()) timeOf(running_) += now - since_;
  if (step.empty()) ++turns_;
  running_ = step;
  since_ = threadTime();
}

void TurnProfile::add(const TurnProfile& other) {
  for (const Step& step : other.steps_) timeOf(step.name) += step.took;
  turns_ += other.turns_;
}

int64_t& TurnProfile::timeOf(std::string_view step) {
  for (Step& each : steps_) {
    if (each.name == step) return each.took;
  }
  return steps_.emplace_back(Step{std::string(step), 0}).took;
}

std::string TurnProfile::text() const {
  int64_t all = 0;
  for (const Step& step : steps_) all += step.took;
  const auto line = [&](const std::string& name, int64_t took) {
    const double share = all > 0 ? static_cast<double>(took) / static_cast<double>(all) : 0;
    return "  " + padded(name, nameColumns) +
           paddedBefore(withDecimals(microseconds(took, turns_), 2) + " µs", figureColumns) +
           paddedBefore(withDecimals(100 * share, 1) + " %", figureColumns) + "\n";
  };
  std::string text = "A turn, mean of " + withCommas(turns_) + ":\n";
  for (const Step& step : steps_) text += line(step.name, step.took);
  return text + line("together", all);
}

}  // namespace backbeat
