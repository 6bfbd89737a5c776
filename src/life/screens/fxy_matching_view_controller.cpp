#include "life/screens/fxy_matching_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "life/dating.h"
#include "life/partner.h"

namespace backbeat {

Outcome FXYMatchingViewController::open() {
  drawMatchCandidate(game_);
  return {};
}

Outcome FXYMatchingViewController::act(const Action& action) {
  // The card that is pulled aside counts apart from the button that does the same.
  const bool isPulled = action.value == "swipe";
  if (action.id == "xbutton") return swipe(game_, isPulled ? Swipe::left : Swipe::cross);
  if (action.id == "heartButton") return swipe(game_, isPulled ? Swipe::right : Swipe::heart);
  if (action.id == "starButton") return swipe(game_, Swipe::star);
  return {};
}

View FXYMatchingViewController::view() const {
  const Matches& candidate = game_.launch.dating.candidate;
  View view{.title = "FXY", .theme = Theme::love};
  Deck deck{
      .picture = faceOf(candidate),
      .title = candidate.name,
      .aside = std::to_string(candidate.age),
      .text = candidate.matchTagline,
      .facts = {{.icon = "briefcase", .label = "Works as", .value = candidate.occupation},
                {.icon = "place",
                 .label = "Distance",
                 .value = std::to_string(game_.launch.dating.distance) + " minutes away"}},
      .corners = {{.icon = "flame",
                   .value = withCommas(static_cast<int64_t>(candidate.chemistry)),
                   .label = "chemistry",
                   .tone = toneOfBand(candidate.chemistry)},
                  {.icon = "star", .value = std::to_string(ratingOf(candidate)), .label = "rating"}},
      .choices =
          {{.id = "xbutton", .label = "Pass", .icon = "pass", .price = swipeCost, .side = Deck::Choice::Side::left},
           {.id = "starButton",
            .label = "Super like",
            .icon = "star",
            .price = swipeCost,
            .side = Deck::Choice::Side::up},
           {.id = "heartButton",
            .label = "Like",
            .icon = "heart",
            .price = swipeCost,
            .side = Deck::Choice::Side::right}},
      .note = std::to_string(swipeCost.energy) + " each, " + std::to_string(state().totalEnergyAvailable) + " left"};
  constexpr size_t labels = 3;
  if (candidate.interests.size() == labels) deck.tags = candidate.interests;
  view.add(std::move(deck));
  view.help = Help{.title = "🔥 CHEMISTRY 🔥",
                   .text =
                       "The flame is how well the two of you get on: a good start, and more energy for you every "
                       "week. It grows with your charisma.\n\nThe star is what others would say."};
  return view;
}

}  // namespace backbeat
