// Plays a career at random: presses everything that is offered, and much that is not, and looks after every press
// whether the game still holds together.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/memory_store.h"
#include "core/random.h"
#include "play/worlds.h"
#include "shell/native/view_printer.h"
#include "shell/trace.h"

namespace backbeat {

/// Where random careers have been.
struct Coverage {
  std::map<std::string, int64_t> screens;  ///< how often each was shown
  /// By screen and the part of the action before the colon: how often it was pressed. 0: offered, never pressed.
  std::map<std::pair<std::string, std::string>, int64_t> actions;
  std::set<std::string> unknownSegues;  ///< asked for by a screen, registered by nobody

  void add(const Coverage& other);
  /// Actions that were offered and never pressed, as "Screen action".
  std::vector<std::string> neverPressed() const;
};

class RandomPlayer {
 public:
  /// Everything about a career follows from its seed, its world too.
  explicit RandomPlayer(uint64_t seed);

  /// Presses so many times. The first fault, or "".
  std::string play(int64_t presses);

  const Coverage& coverage() const { return coverage_; }
  /// Seed, world and the last press: enough to find it again.
  std::string whereabouts() const;
  /// Is told where the career stands before each press, for whoever survives a crash.
  void (*beforePress)(const std::string& whereabouts) = nullptr;

 private:
  /// How often each kind of event comes; drawn for each career, so that some are all tabs and some never reload.
  struct Weights {
    enum Kind { press, unknown, reload, back, tab, endWeek, kinds };
    std::array<int64_t, kinds> of;
    int64_t sum() const { return std::accumulate(of.begin(), of.end(), int64_t{0}); }
  };
  struct Week {
    int64_t tracking = 0;
    bool ending = false;  ///< the coming press ends the week
  };

  int64_t weight() { return random_.integer(0, 1) * random_.integer(1, 20); }
  TraceEvent anyEvent();
  TraceEvent anyPress(const std::vector<Pressable>& offered);
  TraceEvent unknownPress();
  const Pressable& wanted(const std::vector<Pressable>& offered);
  std::string valueFor(const Pressable& pressable);
  std::string absurdValue();
  void note(const Shown& shown, const std::vector<Pressable>& offered);
  void play(const TraceEvent& event);
  std::string fault();
  std::string weekFault(const GameState& state) const;

  uint64_t seed_;
  SeededRandom random_;
  const NamedWorld& world_;
  MemoryStore store_;
  QuietPlatform platform_;
  TraceRecorder career_;
  Weights weights_;
  int64_t absurdIn100_;  ///< of the values typed
  bool hugeTexts_;
  int64_t now_ = 1'672'660'800'000;
  int64_t pressesDone_ = 0;
  std::string lastLine_;
  Week week_;
  Coverage coverage_;
};

}  // namespace backbeat
