#include "label/screens/artist_roi_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

Figure line(std::string label, double amount, Tone tone) {
  return {.label = std::move(label), .value = currency(amount), .amount = amount, .dollars = true, .tone = tone};
}

Row rowOf(Game& game, const SignedArtist& artist) {
  const double revenue = earnedByArtist(game, artist.artistId);
  return {.picture = person(artist.name),
          .title = artist.name,
          .subtitle = "Signed in " + std::to_string(artist.yearSigned) + "\n" + withCommas(artist.monthlyListeners) +
                      " Monthly Listeners",
          .value = currency(revenue),
          .note = "of " + currency(artist.totalLifetimeCost),
          .tone = revenue < artist.totalLifetimeCost ? Tone::bad : Tone::good,
          .opens = true,
          .id = "artist:" + std::to_string(artist.artistId)};
}

}  // namespace

Outcome ArtistRoiViewController::open() {
  if (state().isLabelLaunched < 1) return {};
  keepBestReturn(game_);
  return_ = labelReturn(game_);
  return {};
}

Outcome ArtistRoiViewController::appear() {
  if (state().isLabelLaunched >= 1) return_ = labelReturn(game_);
  return {};
}

Outcome ArtistRoiViewController::press(const Action& action) {
  if (action.id == "artists") window_.moveTo(action.value);
  if (action.verb() == "artist") return goTo("goToSignedArtistDetail", std::string(action.argument()));
  return {};
}

void ArtistRoiViewController::describe(View& view) const {
  view.title = "Return";
  view.subtitle = state().myLabelName;
  const double net = return_.net();
  view.add(Figures{.items = {line("Albums", return_.albums, Tone::good), line("Streams", return_.streams, Tone::good),
                             line("Your verses", return_.verses, Tone::good)},
                   .total = line("Total Earnings", return_.earnings(), Tone::plain)});
  view.add(Figures{.items = {line("Cost of the label", -return_.cost, Tone::bad)},
                   .total = line("Net Earnings", net, toneOfChange(net))});
  const RecordList<SignedArtist>& artists = state().saveAllSignedArtistList;
  if (artists.empty()) {
    view.add(EmptyHint{.icon = "mic", .text = "Nobody has signed yet. Your scouts know where to look."});
  } else {
    view.add(Heading{"Artists"});
    view.add(windowedRows("artists", window_, static_cast<int64_t>(artists.size()),
                          [&](size_t i) { return rowOf(game_, artists[i]); }));
  }
  view.add(caption("Best return of any label: " + currency(static_cast<double>(state().mostSuccessfulLabelHighScore))));
  view.help =
      Help{.title = "🧐 RETURN ON INVESTMENT 🧐",
           .text =
               "\nWhat your artists have brought by albums and streams, and you by verses on their songs, against "
               "salaries, perks, rent, booths and signing bonuses. What it took to found the label is not counted.\n\n"
               "An artist's own row holds their earnings against the signing bonuses that they were paid."};
}

}  // namespace backbeat
