// Random careers. A few in the check; as many as asked for by hand:
//   BACKBEAT_SEED=1000 BACKBEAT_SEEDS=5000 BACKBEAT_STEPS=2000 backbeat_tests --gtest_filter='RandomPlayer*'
#include "play/random_player.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "core/title.h"
#include "play/crawl.h"
#include "play/errand_runner.h"
#include "shell/registry.h"

namespace backbeat {
namespace {

constexpr uint64_t careersOfTheCheck = 84;  // at least one of each world
constexpr int64_t stepsOfTheCheck = 300;

/// Where the running career stands, for the handler of a crash: it may only read what is already there.
std::array<char, 1200> crashNote;

void tellCrash(int signal) {
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, crashNote.data(), crashNote.size());
  ::signal(signal, SIG_DFL);
  raise(signal);
}

void keepForCrash(const std::string& whereabouts) {
  const std::string text = "the game ended: " + whereabouts;
  crashNote.fill(' ');
  std::copy_n(text.begin(), std::min(text.size(), crashNote.size()), crashNote.begin());
}

uint64_t fromEnvironment(const char* name, uint64_t otherwise) {
  const char* text = std::getenv(name);
  return text ? std::strtoull(text, nullptr, 10) : otherwise;
}

/// What neither the errands nor the walk nor chance has to reach in the check, and why that is no fault.
struct Unreached {
  std::string_view what;
  std::string_view why;
};
constexpr std::array<Unreached, 7> unreached = {{
    {"alert Nothing Changed", "only a store that fails raises it"},
    {"alert No Room", "the same; the tests of copies have both"},
    {"alert No Copy Kept", "copies of 100 MB take longer than the check"},
    {"alert ♥️ Family Needs ♥️",
     "asks investors for whom no round waits; the tests of the week's events have it"},
    {"alert 📻 State Radio Show! 📻", "no world is that skilled; the tests of the week's events have all stations"},
    {"alert ⭐️ National Radio Show! ⭐️", "the same"},
    {"alert ⭐️ International Radio Show! ⭐️", "the same"},
}};

bool isExplained(const std::string& what) {
  return std::any_of(unreached.begin(), unreached.end(), [&](const Unreached& each) { return each.what == what; });
}

/// Everything that nobody reached, but for what is explained.
std::vector<std::string> neverReached(const Coverage& coverage) {
  std::vector<std::string> names;
  const auto add = [&](const std::string& name) {
    if (!isExplained(name)) names.push_back(name);
  };
  for (const Segue& segue : segues()) {
    if (!coverage.segues.contains(std::string(segue.name))) add("screen " + std::string(segue.name));
  }
  for (const std::string& action : coverage.neverPressed()) add("press " + action);
  for (const TitleEntry* title = TitleEntry::first(); title; title = title->next()) {
    if (!coverage.alerts.contains(title->name())) add("alert " + title->name());
  }
  return names;
}

TEST(RandomPlayer, NothingThatCanBePressedBreaksACareer) {
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, tellCrash);
  const uint64_t first = fromEnvironment("BACKBEAT_SEED", 1);
  const uint64_t careers = fromEnvironment("BACKBEAT_SEEDS", careersOfTheCheck);
  const auto steps = static_cast<int64_t>(fromEnvironment("BACKBEAT_STEPS", stepsOfTheCheck));
  Coverage coverage;
  for (uint64_t seed = first; seed < first + careers; ++seed) {
    RandomPlayer player(seed);
    player.beforeStep = keepForCrash;
    const std::string fault = player.play(steps);
    EXPECT_EQ(fault, "") << player.whereabouts();
    coverage.add(player.coverage());
    if (::testing::Test::HasFailure()) break;
  }
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, SIG_DFL);
  coverage.add(errandsRun().coverage);
  coverage.add(wholeCrawl().coverage);
  for (const std::string& segue : coverage.unknownSegues) ADD_FAILURE() << "leads nowhere: " << segue;
  const bool enoughForEverything = careers >= careersOfTheCheck;
  for (const std::string& what : neverReached(coverage)) {
    if (enoughForEverything) ADD_FAILURE() << "never reached: " << what;
    if (!enoughForEverything) std::cout << "never reached: " << what << '\n';
  }
}

}  // namespace
}  // namespace backbeat
