// A career in one of the named worlds, played by presses, with somebody who looks whether the game still holds
// together.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/memory_store.h"
#include "play/career_invariants.h"
#include "play/coverage.h"
#include "play/press_oracle.h"
#include "play/worlds.h"
#include "shell/trace.h"
#include "support/moody_shop.h"

namespace backbeat {

/// How much of what is dear to check is checked: that everything was saved, and what looks at all rows.
enum class Care { little, full };

class WatchedCareer {
 public:
  /// Settles in the world at the hour of its calendar; the first launch is still to come. `onStep`, when there is one,
  /// is told what happens before it happens.
  explicit WatchedCareer(const NamedWorld& world, std::function<void(const std::string& line)> onStep = nullptr);

  void launch(uint64_t seed);
  /// Plays a press, be it one that no screen knows.
  void play(const TraceEvent& event);
  /// Presses what is offered; `value` in the place of what a press of it carries.
  void press(const Pressable& pressable, const std::string& value);
  void pass(int64_t milliseconds) { now_ += milliseconds; }

  /// Does what the program around the game does after a press that asks for it, each with a launch of its own, and
  /// hears the shop. What was wrong with it, or "".
  std::string obeyRequest(uint64_t seed);
  /// The career leaves as a file and comes back from it, as on another device.
  std::string carryOver(uint64_t seed);
  std::string goBackTo(const std::string& snapshot, uint64_t seed);

  /// What the last step broke, or "". A screen that is new is looked at in any case, and a week or a launch is followed
  /// by everything.
  std::string fault(Care care);

  Session& session() { return career_.session(); }
  GameState& state() { return session().game().state; }
  CareerStore& store() { return store_; }
  Shown shown() { return session().shown(); }
  /// What can be pressed on the glass but for the tabs, the way back and the end of the week; an alert's buttons alone
  /// while it stands.
  std::vector<Pressable> offered();
  int64_t now() const { return now_; }
  const NamedWorld& world() const { return world_; }

  Coverage coverage;

 private:
  void hear(const std::vector<PurchaseAnswer>& answers);

  const NamedWorld& world_;
  std::function<void(const std::string&)> onStep_;
  MemoryStore store_;
  MoodyShop shop_;
  TraceRecorder career_;
  int64_t now_;  ///< unix milliseconds
  bool justLaunched_ = false;
  bool endingWeek_ = false;  ///< the last press asked for the end of the week
  PressOracle oracle_;
  std::string pressFault_;  ///< of the last press
  WeekBefore week_;
  std::set<std::string_view> seen_;         ///< segues
  std::map<int64_t, std::string> segueOf_;  ///< by the keys of this launch
};

}  // namespace backbeat
