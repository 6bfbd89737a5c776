// The side gigs that a week may offer on its report: up to three, each of fifteen kinds, each good for one press.
#pragma once

#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"

namespace backbeat {

/// What a side gig says of itself before it is taken.
struct EventOffer {
  const char* name = "";  ///< the caption without its price: "Karaoke Night"
  int64_t energy = 0;     ///< as captioned; 0 for what asks for cash
  const char* icon = "";
  const char* headline = "";
  const char* promise = "";
};

/// One of the report's three buttons.
struct EventButton {
  int64_t id = 0;  ///< the option, 1 to 15; 0 when the week offers no such button
  EventOffer offer;
  double dollars = 0;    ///< the amount in the caption of what asks for cash
  bool pressed = false;  ///< hidden for the rest of the report

  bool shown() const { return id != 0 && !pressed; }
  /// "Karaoke Night 25", "Annual Checkup $1,200".
  std::string caption() const;
};

/// What the report knows of the week's side gigs; never saved. The last two fields stand once for all three buttons:
/// the latest draw counts, so an older button keeps its caption and does what the newest one says. That is meant.
struct WeeklyEvents {
  EventButton buttonEvent1;
  EventButton buttonEvent2;
  EventButton buttonEvent3;
  double moneyForEvent10 = 0;          ///< dollars that a good cause or the family asks for
  int64_t featuredArtistEligible = 0;  ///< 1: somebody wants a verse; 0: a fan wants to meet
};

/// Draws how many side gigs the week offers, then each of them in order; the same one may come twice.
void drawWeeklyEventCount(Game& game, WeeklyEvents& events);

/// Draws the option of one button, with its caption, and returns its id.
int64_t drawWeeklyEvent(Game& game, WeeklyEvents& events, EventButton& button);

/// A press: the gig runs, and the button is gone for good, also when the energy did not reach. A button that is not
/// shown does nothing.
Outcome pressEventButton(Game& game, WeeklyEvents& events, EventButton& button);

/// Runs option `id`. Without its energy or cash it is refused and nothing is paid; otherwise it is paid first and its
/// reward drawn after. What leads to a door that is not open yet (a startup's next round, a verse for somebody else, a
/// festival) makes its tests and then refuses before anything is paid.
Outcome resolveWeeklyEvent(Game& game, const WeeklyEvents& events, int64_t id);

/// The card of a button that is shown; `press` is the action of its press.
Card eventCard(const EventButton& button, std::string press);

}  // namespace backbeat
