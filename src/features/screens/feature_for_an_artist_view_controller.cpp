#include "features/screens/feature_for_an_artist_view_controller.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/money.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

std::string percent(int64_t points) { return std::to_string(points) + "%"; }

/// Whatever came of it, the visit is over once the energy is spent.
Outcome closedAfter(Outcome outcome) {
  if (outcome.done()) outcome += closeScreen();
  return outcome;
}

}  // namespace

Outcome FeatureForAnArtistViewController::open() {
  offer_ = drawVerseOffer(game_);
  return {};
}

Outcome FeatureForAnArtistViewController::act(const Action& action) {
  if (action.id == "acceptButton") return acceptButton();
  if (action.id == "negotiateButton") return negotiateButton();
  if (action.id == "askStepper") return askFor(action.value);
  if (action.id == "closeButton") return closeScreen();
  return {};
}

Outcome FeatureForAnArtistViewController::acceptButton() { return closedAfter(acceptVerse(game_, offer_)); }

Outcome FeatureForAnArtistViewController::negotiateButton() {
  return closedAfter(negotiateVerse(game_, offer_, pointsAsked_));
}

Outcome FeatureForAnArtistViewController::askFor(std::string_view step) {
  if (Outcome refusal = askForMoreRoyalty(offer_); !refusal.done()) return refusal;
  if (step == "1") pointsAsked_ = std::min(pointsAsked_ + 1, mostPointsAsked);
  if (step == "-1") pointsAsked_ = std::max(pointsAsked_ - 1, fewestPointsAsked);
  return {};
}

void FeatureForAnArtistViewController::describeTerms(View& view) const {
  const bool isSigned = offer_.isSignedArtist;
  const int64_t weeks = truncate(std::ceil(offer_.trackRating));
  view.add(Tiles{{{.icon = "cash",
                   .label = "Fee at once",
                   .value = isSigned ? "–" : currency(static_cast<double>(offer_.fee)),
                   .tone = isSigned ? Tone::plain : Tone::good},
                  {.icon = "headphones", .label = "Share", .value = percent(offer_.royalty), .note = "of streams"},
                  {.icon = "star",
                   .label = "Track rating",
                   .value = withDecimals(offer_.trackRating, 1),
                   .note = counted(weeks, "week")}}});
  view.add(Heading{"Ask for more"});
  view.add(Stepper{.id = "askStepper",
                   .label = "Your share",
                   .value = percent(offer_.royalty + (isSigned ? 0 : pointsAsked_)),
                   .note = isSigned ? "As the contract has it" : "+" + counted(pointsAsked_, "point"),
                   .canLess = isSigned || pointsAsked_ > fewestPointsAsked,
                   .canMore = isSigned || pointsAsked_ < mostPointsAsked});
}

View FeatureForAnArtistViewController::view() const {
  View view{.title = "Feature Request"};
  view.add(Poster{.pictures = {drawn(Picture::Kind::scene, "studio", offer_.title), person(offer_.artistName)},
                  .kicker = offer_.isSignedArtist ? "On your label" : "They want a verse",
                  .title = offer_.title,
                  .text = offer_.artistName + " (" + withDecimals(offer_.rating, 0) +
                          ") is interested in having you feature on their track - " + offer_.title});
  describeTerms(view);
  view.add(Button{.id = "closeButton", .label = "Not This One"});
  if (!offer_.isSignedArtist) {
    const int64_t chance = negotiationChance(state(), offer_, pointsAsked_);
    view.totals = {{.label = "Chance", .value = percent(chance), .share = static_cast<double>(chance) / 100}};
  }
  view.mainAction = Button{.id = "negotiateButton", .label = "NEGOTIATE", .price = negotiateVerseCost};
  view.aside = Button{.id = "acceptButton", .label = "ACCEPT", .price = acceptVerseCost};
  if (offer_.isSignedArtist) std::swap(view.mainAction, view.aside);  // the one that can be had stands first
  view.mainAction->style = Button::Style::primary;
  view.help = Help{.title = "A verse for somebody else",
                   .text =
                       "The fee is paid at once. Your share of what the song streams comes week by week, for as many "
                       "weeks as the track's rating.\n\nAsk for more, and they may go with somebody else: the better "
                       "you are than they, the better your chance, and each point asked for makes it smaller. What "
                       "you accept as it stands is yours."};
  return view;
}

}  // namespace backbeat
