// Plays a career at random: presses everything that is offered, and much that is not, and looks after every press
// whether the game still holds together.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/memory_store.h"
#include "core/random.h"
#include "play/career_invariants.h"
#include "play/press_oracle.h"
#include "play/random_habits.h"
#include "play/worlds.h"
#include "shell/native/view_printer.h"
#include "shell/trace.h"

namespace backbeat {

/// Where random careers have been.
struct Coverage {
  std::map<std::string, int64_t> segues;  ///< how often what each leads to was shown; a tab's root under its name
  /// By screen and the part of the action before the colon: how often it was pressed. 0: offered, never pressed.
  std::map<std::pair<std::string, std::string>, int64_t> actions;
  std::set<std::string> alerts;         ///< names of the titles shown
  std::set<std::string> unknownSegues;  ///< asked for by a screen, registered by nobody

  void add(const Coverage& other);
  /// Actions that were offered and never pressed, as "Screen action".
  std::vector<std::string> neverPressed() const;
};

class RandomPlayer {
 public:
  /// Everything about a career follows from its seed, its world too. What is dear to check is checked every few steps;
  /// with BACKBEAT_CHECK_ALL in the environment after each.
  explicit RandomPlayer(uint64_t seed);

  /// Does so many things, most of them presses. The first fault, or "".
  std::string play(int64_t things);

  const Coverage& coverage() const { return coverage_; }
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
  std::string step();
  TraceEvent nextOfErrand(const Shown& shown, const std::vector<Pressable>& offered);
  TraceEvent anyPress(const std::vector<Pressable>& offered);
  TraceEvent pressOf(const Pressable& pressable);
  TraceEvent unknownPress();
  const Pressable& wanted(const std::vector<Pressable>& offered);
  std::string valueFor(const Pressable& pressable);
  std::string absurdValue();
  void note(const Shown& shown, const std::vector<Pressable>& offered);
  void play(const TraceEvent& event);
  std::string obeyRequest();
  std::string carryOver();
  std::string importDamaged();
  std::string goBackTo(const std::string& snapshot);
  std::string goBack();
  void launch();
  void mark(const std::string& line);
  std::string fault();

  uint64_t seed_;
  SeededRandom random_;
  const NamedWorld& world_;
  MemoryStore store_;
  QuietPlatform platform_;
  TraceRecorder career_;
  Weights weights_ = {};
  int64_t absurdIn100_;  ///< of the values typed
  bool hugeTexts_;
  int64_t checkEvery_;       ///< what is dear to check is checked every so often
  std::deque<Wish> errand_;  ///< what is still to press of it
  int64_t now_ = 1'672'660'800'000;
  int64_t stepsDone_ = 0;
  bool justLaunched_ = true;
  std::set<std::string_view> seen_;  ///< segues
  std::string lastLine_;
  PressOracle oracle_;
  std::string pressFault_;  ///< of the last press
  WeekBefore week_;
  bool endingWeek_ = false;  ///< the last press asked for the end of the week
  Coverage coverage_;
};

}  // namespace backbeat
