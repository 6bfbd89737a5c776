#include "turn/weekly_events.h"

#include <array>

#include "core/bands.h"
#include "core/money.h"
#include "turn/gigs/gigs.h"

namespace backbeat {

namespace {

/// One of the kinds of gig that a button can offer. Two of them come to different gigs, by what is known at the draw
/// and again at the press.
struct Option {
  const Gig* gig = nullptr;
  const Gig& (*choose)(const GameState&, const WeeklyEvents&) = nullptr;
};

/// Who asks is decided by the portfolio.
const Gig& appeal(const GameState& state, const WeeklyEvents&) {
  if (state.saveAllVentureInvestments.empty()) return goodCause;
  return anyRaise(state) ? ventureRaise : familyRequest;
}

const Gig& verseOrFan(const GameState&, const WeeklyEvents& events) {
  return events.featuredArtistEligible == 1 ? featureRequest : fanMeeting;
}

constexpr int64_t verseOrFanId = 14;

constexpr std::array<Option, 15> options = {{
    {&karaokeNight},
    {&oddJobs},
    {&rentalInquiry},
    {&ghostWriting},
    {&radioShow},
    {&annualCheckup},
    {&talentShow},
    {&dropShipping},
    {&pitchDeck},
    {nullptr, appeal},
    {&sellBeats},
    {&tikTak},
    {&musicLesson},
    {nullptr, verseOrFan},
    {&festivalInvite},
}};

/// How many buttons a roll from 0 to 100 shows.
constexpr int64_t buttonRollTop = 100;
constexpr Band<int64_t, int64_t> buttonCounts[] = {{20, 0}, {60, 1}, {90, 2}};
constexpr int64_t mostButtons = 3;

/// What a press on option `id` comes to.
const Gig& gigOf(int64_t id, const GameState& state, const WeeklyEvents& events) {
  const Option& option = options[static_cast<size_t>(id) - 1];
  return option.choose ? option.choose(state, events) : *option.gig;
}

}  // namespace

std::string EventButton::caption() const {
  return std::string(gig->name) + " " + (said.energy > 0 ? std::to_string(said.energy) : currency(said.dollars));
}

void drawWeeklyEventCount(Game& game, WeeklyEvents& events) {
  events = WeeklyEvents();
  const int64_t count = bandFor(buttonCounts, game.random.integer(0, buttonRollTop), mostButtons);
  if (count >= 1) drawWeeklyEvent(game, events, events.buttonEvent1);
  if (count >= 2) drawWeeklyEvent(game, events, events.buttonEvent2);
  if (count >= 3) drawWeeklyEvent(game, events, events.buttonEvent3);
}

int64_t drawWeeklyEvent(Game& game, WeeklyEvents& events, EventButton& button) {
  button = EventButton();
  button.id = game.random.integer(0, static_cast<int64_t>(options.size()) - 1) + 1;
  if (button.id == verseOrFanId) events.featuredArtistEligible = skilledEnoughToFeature(game.state) ? 1 : 0;
  button.gig = &gigOf(button.id, game.state, events);
  if (button.gig->draw) button.gig->draw(game, events);
  button.said = gigCost(*button.gig, game.state, events);
  return button.id;
}

Outcome pressEventButton(Game& game, WeeklyEvents& events, EventButton& button) {
  if (!button.shown()) return {};
  button.pressed = true;
  return resolveWeeklyEvent(game, events, button.id);
}

Outcome resolveWeeklyEvent(Game& game, WeeklyEvents& events, int64_t id) {
  return takeGig(game, events, gigOf(id, game.state, events));
}

Card eventCard(const GameState& state, const WeeklyEvents& events, const EventButton& button, std::string press) {
  Button take{.id = std::move(press), .label = button.gig->name, .style = Button::Style::primary};
  // The price completes the caption; an amount that is nothing or less has no price to show and stands in the words.
  if (button.said.energy > 0 || button.said.dollars > 0) {
    const Charge now = gigCost(gigOf(button.id, state, events), state, events).charged();
    take.price = button.said;
    if (now != button.said.charged()) take.price->charge = now;
  } else {
    take.label = button.caption();
  }
  return {.picture = icon(button.gig->icon),
          .title = button.gig->headline,
          .text = button.gig->promise,
          .buttons = {std::move(take)}};
}

}  // namespace backbeat
