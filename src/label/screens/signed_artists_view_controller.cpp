#include "label/screens/signed_artists_view_controller.h"

#include "career/skill.h"
#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "label/departments.h"
#include "label/roster.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

/// Who needs the player stands first, who has left last.
int64_t urgency(const GameState& state, const SignedArtist& artist) {
  if (!artist.underContract) return 0;
  return contractIsUp(state, artist) ? 3 : albumWaits(state, artist) ? 2 : 1;
}

std::string standingOf(const GameState& state, const SignedArtist& artist) {
  // Short, since a row on a narrow phone has room for four lines of it.
  const std::string listeners = abbreviated(static_cast<double>(artist.monthlyListeners));
  if (!artist.underContract) return "DROPPED • " + listeners + " MONTHLY LISTENERS";
  if (contractIsUp(state, artist)) return "PENDING\nCONTRACT IS UP • " + listeners + " MONTHLY LISTENERS";
  const std::string album =
      albumWaits(state, artist) ? "COMPLETE" : "IN PRODUCTION (" + std::to_string(artist.weeksToCompleteAlbum) + ")";
  return album + "\n" + std::to_string(weeksLeft(state, artist)) + " WEEKS LEFT • " + listeners + " LISTENERS";
}

Row rowOf(const GameState& state, const SignedArtist& artist) {
  const int64_t rating = artistRating(artist);
  Row row{.picture = person(artist.name),
          .title = artist.name,
          .subtitle = standingOf(state, artist),
          .value = std::to_string(rating),
          .tone = artist.underContract ? toneOfBand(static_cast<double>(rating)) : Tone::plain,
          .opens = true,
          .id = "artist:" + std::to_string(artist.artistId)};
  if (contractIsUp(state, artist)) row.badge = "CONTRACT";
  if (albumWaits(state, artist)) row.badge = "ALBUM";
  return row;
}

}  // namespace

Outcome SignedArtistsViewController::press(const Action& action) {
  if (action.id == "artists") window_.moveTo(action.value);
  if (action.id == "goToFindNewArtists") return goTo(action.id);
  if (action.verb() == "artist") return goTo("goToSignedArtistDetail", std::string(action.argument()));
  return {};
}

std::vector<size_t> SignedArtistsViewController::inOrder() const {
  const RecordList<SignedArtist>& artists = state().saveAllSignedArtistList;
  std::vector<size_t> order(artists.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  sortStably(order, [&](size_t a, size_t b) { return urgency(state(), artists[a]) > urgency(state(), artists[b]); });
  return order;
}

void SignedArtistsViewController::describe(View& view) const {
  view.title = "Artists";
  view.subtitle = state().myLabelName;
  view.add(Tiles{{{.label = "under contract",
                   .value = std::to_string(activeArtists(state())) + "/" + std::to_string(state().studioCapacity)}}});
  const std::vector<size_t> order = inOrder();
  if (order.empty()) {
    view.add(EmptyHint{.icon = "mic", .text = "Nobody has signed yet. Your scouts know where to look."});
  } else {
    view.add(windowedRows("artists", window_, static_cast<int64_t>(order.size()),
                          [&](size_t i) { return rowOf(state(), state().saveAllSignedArtistList[order[i]]); }));
  }
  view.mainAction = Button{.id = "goToFindNewArtists", .label = "Scout New Artists", .style = Button::Style::primary};
  view.help =
      Help{.title = "🧐 YOUR ARTISTS 🧐",
           .text =
               "\nAn artist works on one album after the other. When it is complete, review its songs and it comes "
               "out.\n\nHAPPINESS\nHappy artists get better, unhappy ones worse. One of your A&R team looks after "
               "three artists; a tired or unhappy team lets them down.\n\nCONTRACTS\nWhen a contract is up the album "
               "rests and the happiness falls every week, until you renew it or drop the artist."};
}

}  // namespace backbeat
