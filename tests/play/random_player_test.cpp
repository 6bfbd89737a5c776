// Random careers. A few in the check; as many as asked for by hand:
//   BACKBEAT_SEED=1000 BACKBEAT_CAREERS=5000 BACKBEAT_PRESSES=2000 backbeat_tests --gtest_filter='RandomPlayer.*'
#include "play/random_player.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "shell/registry.h"

namespace backbeat {
namespace {

constexpr uint64_t careersOfTheCheck = 60;

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

/// Met only from a song and an album that are in production at once; the walk through all screens opens them each time.
constexpr std::array<std::string_view, 2> rare = {"goToAddToAlbum", "goToSetAlbumPricing"};

TEST(RandomPlayer, NothingThatCanBePressedBreaksACareer) {
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, tellCrash);
  const uint64_t first = fromEnvironment("BACKBEAT_SEED", 1);
  const uint64_t careers = fromEnvironment("BACKBEAT_CAREERS", careersOfTheCheck);
  const auto presses = static_cast<int64_t>(fromEnvironment("BACKBEAT_PRESSES", 300));
  Coverage coverage;
  for (uint64_t seed = first; seed < first + careers; ++seed) {
    RandomPlayer player(seed);
    player.beforePress = keepForCrash;
    const std::string fault = player.play(presses);
    EXPECT_EQ(fault, "") << player.whereabouts();
    coverage.add(player.coverage());
    if (::testing::Test::HasFailure()) break;
  }
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, SIG_DFL);
  for (const std::string& action : coverage.neverPressed()) std::cout << "never pressed: " << action << '\n';
  for (const std::string& segue : coverage.unknownSegues) ADD_FAILURE() << "leads nowhere: " << segue;
  if (careers < careersOfTheCheck) return;  // too few to have been everywhere
  for (const Segue& segue : segues()) {
    if (std::find(rare.begin(), rare.end(), segue.name) != rare.end()) continue;
    EXPECT_GT(coverage.screens[std::string(segue.screen)], 0) << segue.name << " was never opened";
  }
}

}  // namespace
}  // namespace backbeat
