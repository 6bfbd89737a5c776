// Plays a career by presses: finds what to press by its id instead of where it stands, and keeps what it pressed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store.h"
#include "shell/score_keeper.h"
#include "shell/trace.h"

namespace backbeat {

class Player {
 public:
  /// Launches a career that no store keeps. `problems` gets the steps that could not be made.
  Player(uint64_t seed, std::vector<std::string>& problems);
  /// Goes on with the career that `store` holds, at that time.
  Player(Store& store, int64_t unixMilliseconds, uint64_t seed, std::vector<std::string>& problems);

  /// The trace so far.
  const std::vector<std::string>& lines() const { return lines_; }
  const GameState& state() { return career_.session().game().state; }
  const Launch& launch() { return career_.session().game().launch; }
  /// What is on the glass; until the next press.
  const Shown& seen();
  /// The screen that is seen, to look things up in; core/view_find.h has how.
  const View& view() { return seen().view; }

  /// Presses what has the id; a step that finds nothing to press is a problem. Without a value a toggle turns, and what
  /// else takes one gets none.
  void press(const std::string& id, const std::optional<std::string>& value = std::nullopt);
  /// The same where it is no problem when nothing has the id; false then.
  bool tryPress(const std::string& id, const std::optional<std::string>& value = std::nullopt);
  /// Goes to the root of a tab.
  void tab(TabNumber number);
  /// Leaves the screen.
  void back() { act("nav", {"back", ""}); }
  /// Answers one question with the button of that number, or with its first when it has fewer; nothing when nobody
  /// asks.
  void answer(size_t button);
  /// Answers what is asked with the first button.
  void settle();
  /// Ends the week from the root of the tab and reads the report; the chances it offers are taken when `takesChances`.
  void endTheWeek(bool takesChances = false);

  /// From now on hears pitches among the chances, and joins rounds that cost at most that share of the cash.
  void backStartups(double shareOfCash) { shareForARound_ = shareOfCash; }
  /// From now on opens the envelopes of the awards when a report leads to them.
  void attendAwards() { attendsAwards_ = true; }

  /// Has every turn tell `observer` of its steps.
  void observeTurns(StepObserver observer) { career_.session().observeTurns(std::move(observer)); }

 private:
  void backToRoot();
  /// Accepts an invitation to a festival, when one is on the glass, with the best songs.
  void playFestival();
  /// Whether that chance shows slides: who has no money for founders keeps the energy.
  bool isPitch(std::string_view chance);
  /// Takes the larger part of a round that there is money for, when one is on the glass, or none.
  void answerFounders();
  void act(const std::string& screenKey, const Action& action);

  NullStore keepsNothing_;
  int64_t now_;
  ScoreKeeper platform_;
  std::vector<std::string> lines_;
  TraceRecorder career_;
  std::optional<Shown> seen_;
  double shareForARound_ = 0;
  bool attendsAwards_ = false;
  std::vector<std::string>& problems_;
};

}  // namespace backbeat
