// Plays a career at random: presses everything that is offered, and much that is not, and looks after every press
// whether the game still holds together.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <numeric>
#include <string>
#include <vector>

#include "core/random.h"
#include "play/errands.h"
#include "play/watched_career.h"

namespace backbeat {

class RandomPlayer {
 public:
  /// Everything about a career follows from its seed, its world too. What is dear to check is checked every few steps;
  /// with BACKBEAT_CHECK_ALL in the environment after each.
  explicit RandomPlayer(uint64_t seed);

  /// Does so many things, most of them presses. The first fault, or "".
  std::string play(int64_t things);

  const Coverage& coverage() const { return career_.coverage; }
  /// Seed, world, the last thing done, and the command that does it again.
  std::string whereabouts() const;
  /// Is told where the career stands before each step, for whoever survives a crash.
  void (*beforeStep)(const std::string& whereabouts) = nullptr;

 private:
  /// How often each kind of thing is done; drawn for each career, so that some are all tabs and some never reload.
  struct Weights {
    enum Kind { press, unknown, reload, back, tab, endWeek, errand, carryOver, damagedImport, goBack, kinds };
    std::array<int64_t, kinds> of;
    int64_t sum() const { return std::accumulate(of.begin(), of.end(), int64_t{0}); }
  };

  int64_t weight() { return random_.integer(0, 1) * random_.integer(1, 20); }
  int64_t rarely() { return weight() / 4; }
  void launch() { career_.launch(random_.bits64()); }
  std::string step();
  void pressNextOfErrand(const std::vector<Pressable>& offered);
  void pressAny(const std::vector<Pressable>& offered);
  void pressUnknown();
  const Pressable& wanted(const std::vector<Pressable>& offered);
  std::string valueFor(const Pressable& pressable);
  std::string absurdValue();
  std::string importDamaged();
  std::string goBack();
  void mark(const std::string& line);
  std::string fault();

  uint64_t seed_;
  SeededRandom random_;
  WatchedCareer career_;
  Weights weights_ = {};
  int64_t absurdIn100_;  ///< of the values typed
  bool hugeTexts_;
  int64_t checkEvery_;       ///< what is dear to check is checked every so often
  std::deque<Wish> errand_;  ///< what is still to press of it
  int64_t stepsDone_ = 0;
  std::string lastLine_;
};

}  // namespace backbeat
