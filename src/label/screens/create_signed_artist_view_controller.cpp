#include "label/screens/create_signed_artist_view_controller.h"

#include "label/scouting.h"

namespace backbeat {

Outcome CreateSignedArtistViewController::open() {
  idea_.remaining = totalTraitPoints(state());
  return {};
}

Outcome CreateSignedArtistViewController::press(const Action& action) {
  if (action.id == "createArtistButton") return createArtist(game_, idea_);
  if (action.id == "name") idea_.artist.name = action.value;
  for (const ArtistPoint& point : artistPoints) {
    if (action.id == point.key) stepPoint(idea_, point, wholeNumber(action.value).value_or(0));
  }
  return {};
}

void CreateSignedArtistViewController::describe(View& view) const {
  view.title = "Create an Artist";
  const ScoutedArtist& artist = idea_.artist;
  view.add(Cover{.picture = person(artist.name.empty() ? "Nobody Yet" : artist.name),
                 .title = artist.name.empty() ? "Who is it?" : artist.name,
                 .text = std::to_string(idea_.remaining) + " remaining",
                 .badge = std::to_string(ratingOf(artist))});
  view.add(TextField{.id = "name", .label = "Name", .value = artist.name, .placeholder = "Enter the Artist's Name"});
  view.add(Heading{"Traits"});
  for (const ArtistPoint& point : artistPoints) {
    const int64_t value = artist.*point.value;
    view.add(Stepper{.id = std::string(point.key),
                     .label = std::string(point.title) + " (" + std::to_string(value) + ")",
                     .canLess = canStepPoint(idea_, point, -1),
                     .canMore = canStepPoint(idea_, point, 1)});
  }
  view.totals = {{.label = "to give", .value = std::to_string(idea_.remaining) + " remaining"}};
  view.mainAction =
      Button{.id = "createArtistButton", .label = "CREATE", .price = createArtistCost, .style = Button::Style::primary};
  view.help =
      Help{.title = "🧐 CREATE AN ARTIST 🧐",
           .text =
               "You decide the name and get to allocate each trait. After you have created your artist, you will "
               "still need to negotiate and sign them to your label.\n\n🔥TRAIT POINTS🔥\nThe amount of points you "
               "have to assign is based on the overall rating of your A&R Department and your recruiting trait.\n\n"
               "SIGNING CREATED ARTISTS\nAfter you create an artist, you need to sign them to your label on the "
               "Review Demo screen."};
}

}  // namespace backbeat
