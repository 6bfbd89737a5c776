// The side gigs that a week may offer on its report: up to three, each of fifteen kinds, each good for one press.
#pragma once

#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"
#include "turn/gigs/gig.h"

namespace backbeat {

/// One of the report's three buttons.
struct EventButton {
  int64_t id = 0;            ///< the option, 1 to 15; 0 when the week offers no such button
  const Gig* gig = nullptr;  ///< what the button says; a press may come to another
  Price said;                ///< as in the caption
  bool pressed = false;      ///< hidden for the rest of the report

  bool shown() const { return id != 0 && !pressed; }
  /// "Karaoke Night 25", "Annual Checkup $1,200".
  std::string caption() const;
};

/// What the report knows of the week's side gigs; never saved. What stands after the buttons stands once for all three:
/// the latest draw counts, so an older button keeps its caption and does what the newest one says. That is meant.
struct WeeklyEvents {
  EventButton buttonEvent1;
  EventButton buttonEvent2;
  EventButton buttonEvent3;
  double moneyForEvent10 = 0;          ///< dollars that a good cause or the family asks for
  int64_t featuredArtistEligible = 0;  ///< 1: somebody wants a verse; 0: a fan wants to meet
  int64_t judgesMood = 0;              ///< 0 to 100, of the latest audition; the skill has to reach it
};

/// Draws how many side gigs the week offers, then each of them in order; the same one may come twice.
void drawWeeklyEventCount(Game& game, WeeklyEvents& events);

/// Draws the option of one button, with its caption, and returns its id.
int64_t drawWeeklyEvent(Game& game, WeeklyEvents& events, EventButton& button);

/// A press: the gig runs, and the button is gone for good, also when the energy did not reach. A button that is not
/// shown does nothing.
Outcome pressEventButton(Game& game, WeeklyEvents& events, EventButton& button);

/// Runs option `id`. Without its energy or cash it is refused and nothing is paid; otherwise it is paid first and its
/// reward drawn after.
Outcome resolveWeeklyEvent(Game& game, WeeklyEvents& events, int64_t id);

/// The card of a button that is shown; `press` is the action of its press. Its price is the caption's, with what a
/// press would take now where that differs.
Card eventCard(const GameState& state, const WeeklyEvents& events, const EventButton& button, std::string press);

}  // namespace backbeat
