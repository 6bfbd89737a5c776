// What happened in a career, as text: launches, presses and what a shop answered, one a line. The same trace gives the
// same career wherever it is played.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"

namespace backbeat {

struct TraceEvent {
  enum class Kind {
    launch,    ///< the game starts, on whatever the store holds by then
    act,       ///< one press
    purchase,  ///< a shop answers
  } kind = Kind::act;
  int64_t unixMilliseconds = 0;  ///< when it happened; may run backwards, as clocks do
  uint64_t seed = 0;             ///< of a launch
  std::string screenKey;         ///< of a press, with its action
  Action action;
  PurchaseAnswer purchase;  ///< of a purchase
};

TraceEvent launchEvent(int64_t unixMilliseconds, uint64_t seed);
TraceEvent actEvent(int64_t unixMilliseconds, std::string screenKey, Action action);
TraceEvent purchaseEvent(int64_t unixMilliseconds, PurchaseAnswer answer);

/// The event as one line, without its end: "launch <seed> <ms>", "act <ms> <screenKey> <id> <value>" or "purchase <ms>
/// <result> <product> <transaction> <free or paid>". Spaces, per cent signs and control characters are written as %20;
/// an empty text is a lone per cent sign.
std::string traceLine(const TraceEvent& event);

struct Trace {
  std::vector<TraceEvent> events;
  std::string problem;  ///< when the text is no trace, what is wrong, with the number of the line; then no events
};

/// How a purchase ended, in a word: "done", "refused" or "failed".
std::string_view wordOf(PurchaseAnswer::Result result);
std::optional<PurchaseAnswer::Result> purchaseResultFrom(std::string_view word);

/// Reads lines as `traceLine` writes them; empty lines are skipped. A trace begins with a launch. One
/// that goes on with a career it does not hold says so and is refused.
Trace readTrace(std::string_view text);

/// 16 hexadecimal digits: how the fingerprint of a state is told.
std::string hashText(uint64_t hash);

/// A career played by events. A launch begins a new session on the same store, as starting the program again does.
class TraceRecorder {
 public:
  /// `record`, when there is one, gets the line of each event before it is played, so that a trace also tells the press
  /// that ended the program.
  TraceRecorder(Store& store, Platform& platform, std::function<void(const std::string& line)> record = nullptr);

  /// What comes before the first launch is ignored.
  void play(const TraceEvent& event);

  /// Marks the trace: the next launch finds a career that none of its events made, so nobody can replay it.
  void noteForeignCareer();

  /// The running session. There is none before the first launch.
  Session& session() { return *session_; }

 private:
  Store& store_;
  Platform& platform_;
  std::function<void(const std::string&)> record_;
  std::unique_ptr<Session> session_;
};

}  // namespace backbeat
