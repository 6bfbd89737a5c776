#include "label/screens/demo_and_offer_view_controller.h"

#include "core/money.h"
#include "core/random.h"
#include "core/view_words.h"
#include "label/scouting.h"
#include "label/screens/label_words.h"
#include "music/genres.h"

namespace backbeat {

namespace {

/// The demo's own tune, in a style that follows from the name.
std::string demoHook(const ScoutedArtist& artist) {
  return artist.name + "|" + std::string(genres[hashOf(artist.name) % genres.size()]);
}

}  // namespace

Outcome DemoAndOfferViewController::open() {
  terms_ = firstTerms(state(), artist_);
  return {};
}

Outcome DemoAndOfferViewController::press(const Action& action) {
  if (action.id == "years") return step(SigningTerm::contractLength, action);
  if (action.id == "share") return step(SigningTerm::revenueShare, action);
  if (action.id == "bonus") return step(SigningTerm::signingBonus, action);
  if (action.id != "offerButton" || offered_) return {};
  offered_ = true;
  return makeOffer(game_, artist_, terms_);
}

Outcome DemoAndOfferViewController::step(SigningTerm term, const Action& action) {
  stepTerm(terms_, term, wholeNumber(action.value).value_or(0));
  return {};
}

void DemoAndOfferViewController::describe(View& view) const {
  view.title = "The Offer";
  if (!isStillFree(state(), artist_)) {
    view.add(EmptyHint{.icon = "mic", .text = "Nobody sits at the table."});
    return;
  }
  describeArtist(view);
  describeTerms(view);
  view.help =
      Help{.title = "🧐 SIGNING ARTISTS 🧐",
           .text =
               "You decide the terms when negotiating but you'll only get to offer this artist once.\n\nNEGOTIATION\n"
               "The chance an artist signs is based on your studio rating and their talent score. Higher talent scores "
               "and artists that have similar ratings to your studio will be harder to convince.\n\n🔥TALENT METER🔥\n"
               "Artists with a higher talent meter have a faster chance to level up their ratings over time.\n\n"
               "HAPPINESS\nArtist happiness is based on the happiness of your Artist & Repertoire department. Keep "
               "your A&R team happy, and your artists will be happy."};
}

void DemoAndOfferViewController::describeArtist(View& view) const {
  view.add(Cover{
      .picture = person(artist_.name),
      .title = artist_.name,
      .text = withCommas(artist_.monthlyListeners) + " monthly listeners\nrating " + std::to_string(ratingOf(artist_)),
      .hook = demoHook(artist_)});
  view.add(Meter{.label = "Talent meter",
                 .value = std::to_string(artist_.talent),
                 .share = shareOf(artist_.talent, int64_t{100}),
                 .steps = 12});
  view.add(ratingMeter("Demo", artist_.demoRating));
  Gauges traits;
  traits.items = {levelGauge("Songwriting", static_cast<double>(artist_.songwriting)),
                  levelGauge("Vocals", static_cast<double>(artist_.vocals)),
                  levelGauge("Rhythm", static_cast<double>(artist_.rhythm)),
                  levelGauge("Charisma", static_cast<double>(artist_.charisma)),
                  levelGauge("Virality", static_cast<double>(artist_.virality))};
  view.add(std::move(traits));
}

void DemoAndOfferViewController::describeTerms(View& view) const {
  const auto stepper = [&](std::string id, SigningTerm term, std::string label, std::string value) {
    view.add(Stepper{.id = std::move(id),
                     .label = std::move(label),
                     .value = std::move(value),
                     .canLess = canStep(terms_, term, -1),
                     .canMore = canStep(terms_, term, 1)});
  };
  stepper("years", SigningTerm::contractLength, "Contract", counted(terms_.contractLength, "year"));
  stepper("share", SigningTerm::revenueShare, state().myLabelName + "'s Cut",
          std::to_string(terms_.revenueShare) + "%");
  stepper("bonus", SigningTerm::signingBonus, "Signing bonus", currency(static_cast<double>(terms_.signingBonus)));
  view.add(caption("Your Artist & Repertoire team is excited for " + artist_.name +
                   " and think they will be a great fit for " + state().myLabelName + "."));
  const int64_t chance = chanceInPercent(terms_);
  view.totals = {{.label = offered_ ? "Your offer is made" : "One offer a visit",
                  .value = std::to_string(chance) + "% Chance",
                  .share = shareOf(chance, int64_t{100})}};
  if (offered_) return;
  view.mainAction = Button{.id = "offerButton", .label = "OFFER", .price = offerCost, .style = Button::Style::primary};
}

}  // namespace backbeat
