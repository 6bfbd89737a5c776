// Plays a career by presses: finds what to press by its id instead of where it stands, and keeps what it pressed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/memory_store.h"
#include "shell/trace.h"

namespace backbeat {

class ScriptedPlayer {
 public:
  /// `problems` gets the steps that could not be made.
  ScriptedPlayer(uint64_t seed, std::vector<std::string>& problems);

  /// The trace so far.
  const std::vector<std::string>& lines() const { return lines_; }
  const GameState& state() { return career_.session().game().state; }
  const Launch& launch() { return career_.session().game().launch; }

  /// Presses what has the id; a step that finds nothing to press is a problem.
  void press(const std::string& id, const std::optional<std::string>& value = std::nullopt);
  /// The same where it is no problem when nothing has the id; false then.
  bool tryPress(const std::string& id, const std::optional<std::string>& value = std::nullopt);
  /// Goes to the root of a tab.
  void tab(TabNumber number);
  /// Answers what is asked with the first button.
  void settle();
  /// Ends the week and reads the report; the chances it offers are taken when `takesChances`.
  void endTheWeek(bool takesChances = false);

 private:
  std::string screen();
  void act(const std::string& screenKey, const Action& action);

  int64_t now_;
  MemoryStore store_;
  QuietPlatform platform_;
  std::vector<std::string> lines_;
  TraceRecorder career_;
  std::vector<std::string>& problems_;
};

}  // namespace backbeat
