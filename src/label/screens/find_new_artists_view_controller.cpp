#include "label/screens/find_new_artists_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "label/scouting.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

Card artistCard(const ScoutedArtist& artist, size_t number) {
  const int64_t rating = ratingOf(artist);
  return {.picture = person(artist.name),
          .title = artist.name,
          .text = abbreviated(static_cast<double>(artist.monthlyListeners)) + " monthly listeners",
          .badge = artist.createdPosition >= 0 ? "YOURS" : "",
          .tone = toneOfBand(static_cast<double>(rating)),
          .value = std::to_string(rating) + " rating",
          .meters = {{.label = "🔥 Talent",
                      .value = std::to_string(artist.talent),
                      .share = shareOf(artist.talent, int64_t{100}),
                      .steps = 12},
                     ratingMeter("Demo", artist.demoRating)},
          .buttons = {{.id = "demo:" + std::to_string(number),
                       .label = "DEMO",
                       .price = demoCost,
                       .style = Button::Style::primary}}};
}

}  // namespace

Outcome FindNewArtistsViewController::open() {
  if (state().isLabelLaunched >= 1) artists_ = generateScoutingList(game_);
  return {};
}

Outcome FindNewArtistsViewController::appear() {
  if (!heardOne_) return {};
  heardOne_ = false;
  return open();
}

Outcome FindNewArtistsViewController::press(const Action& action) {
  const auto number = optionNumber(action.argument(), artists_.size());
  if (action.verb() != "demo" || !number) return {};
  Outcome outcome = listenToDemo(game_, artists_[*number]);
  heardOne_ = outcome.done();
  return outcome;
}

void FindNewArtistsViewController::describe(View& view) const {
  const ScoutingBounds bounds = scoutingBounds(state());
  view.title = "Scouting";
  view.subtitle = state().myLabelName;
  view.add(
      Tiles{{{.label = artists_.size() == 1 ? "artist this visit" : "artists this visit",
              .value = std::to_string(artists_.size())},
             {.label = bounds.scouts == 1 ? "scout" : "scouts", .value = std::to_string(bounds.scouts)},
             {.label = "traits they find",
              .value = std::to_string(bounds.minTraitRatings) + " to " + std::to_string(bounds.maxTraitRatings)}}});
  if (artists_.empty()) {
    view.add(EmptyHint{.icon = "ear",
                       .text = "Your scouts came home without anybody. Better ones, and more of your own recruiting, "
                               "find more artists."});
  }
  for (size_t i = 0; i < artists_.size(); ++i) view.add(artistCard(artists_[i], i));
  view.help =
      Help{.title = "Scouting",
           .text =
               "Listening to a demo costs 5 energy. The number next to the artist's name is their overall rating. The "
               "number above the DEMO provides an example of the song rating they can currently produce.\n\n🔥TALENT "
               "METER🔥\nArtists with a higher talent meter have a faster chance to level up their traits over time "
               "but can also be harder to sign to your label."};
}

}  // namespace backbeat
