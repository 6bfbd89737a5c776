#include "label/screens/signed_artist_detail_view_controller.h"

#include <vector>

#include "career/skill.h"
#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "label/accounts.h"
#include "label/album_review.h"
#include "label/artist_contract.h"
#include "label/coaching.h"
#include "label/roster.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

constexpr int64_t weeksInYear = 52;
constexpr std::string_view confirmRenewal = "confirmRenewal";
constexpr std::string_view confirmDrop = "confirmDrop";

std::string hookOf(const SignedArtist& artist) { return artist.name + "|" + std::string(genreOf(artist.artistId)); }

/// A trait's name, with what has become of it since the artist signed.
std::string withChange(const std::string& name, int64_t value, int64_t original) {
  const int64_t change = value - original;
  if (change == 0) return name;
  return name + " (" + std::string(change > 0 ? "+" : "") + std::to_string(change) + ")";
}

Gauge traitGauge(const std::string& name, int64_t value, int64_t original) {
  return levelGauge(withChange(name, value, original), static_cast<double>(value));
}

/// A work of the artist and what it has earned.
struct Earner {
  size_t position = 0;
  double dollars = 0;
};

std::vector<Earner> greatestFirst(std::vector<Earner> works) {
  sortStably(works, [](const Earner& a, const Earner& b) { return a.dollars > b.dollars; });
  return works;
}

std::vector<Earner> albumsOf(Game& game, int64_t artistId) {
  const RecordList<SignedArtistAlbum>& albums = game.state.saveAllSignedArtistAlbumList;
  const LabelSums sums = labelSums(game);
  std::vector<Earner> works;
  for (const uint32_t i : albums.historyOf(artistId)) {
    works.push_back({i, earnedBy(sums.sales.ofWork, albums[i].albumId)});
  }
  return greatestFirst(std::move(works));
}

std::vector<Earner> songsOf(Game& game, const std::vector<Earner>& albums) {
  const RecordList<SignedArtistSong>& songs = game.state.saveAllSignedArtistSongList;
  const LabelSums sums = labelSums(game);
  std::vector<Earner> works;
  for (const Earner& album : albums) {
    for (const uint32_t i : songs.historyOf(game.state.saveAllSignedArtistAlbumList[album.position].albumId)) {
      works.push_back({i, earnedBy(sums.streams.ofWork, songs[i].songId)});
    }
  }
  return greatestFirst(std::move(works));
}

}  // namespace

Outcome SignedArtistDetailViewController::press(const Action& action) {
  if (action.id == "coachButton") return coachArtist(game_, artistId_);
  if (action.id == "reviewButton") return reviewSongList(game_, artistId_);
  if (action.id == "renewButton") return askToRenew(state(), artistId_, {std::string(confirmRenewal), ""});
  if (action.id == confirmRenewal) return renewContract(game_, artistId_);
  if (action.id == "dropButton") return askToDrop(state(), artistId_, {std::string(confirmDrop), ""});
  if (action.id == confirmDrop) return dropArtist(game_, artistId_);
  if (action.id == "songs") songs_.moveTo(action.value);
  if (action.id == "albums") albums_.moveTo(action.value);
  if (action.verb() == "album") return goTo("goToSignedArtistSongList", std::string(action.argument()));
  return {};
}

void SignedArtistDetailViewController::describe(View& view) const {
  const size_t position = artistPosition(state(), artistId_);
  if (position == state().saveAllSignedArtistList.size()) {
    view.add(EmptyHint{.icon = "mic", .text = "Nobody by that name has signed with you."});
    return;
  }
  const SignedArtist& artist = state().saveAllSignedArtistList[position];
  view.title = artist.name;
  view.add(Cover{
      .picture = person(artist.name),
      .title = artist.name,
      .text = withCommas(artist.monthlyListeners) + " monthly listeners\n" + std::string(genreOf(artist.artistId)),
      .badge = std::to_string(artistRating(artist)),
      .hook = hookOf(artist)});
  describeLevels(view, artist);
  describeAlbum(view, artist);
  describeContract(view, artist);
  describeWork(view, artist);
  describeButtons(view, artist);
  view.help =
      Help{.title = "🧐 MANAGING ARTISTS 🧐",
           .text =
               "\nCOACHING\nCosts energy, and helps about every other time: a point in one trait, or happiness. Your "
               "leadership makes it cheaper.\n\nHAPPINESS\nAbove 80 traits grow by themselves, below 50 they fall. "
               "Keep your A&R team happy and large enough.\n\nALBUMS\nReviewing a complete album brings it out. Until "
               "the week ends you can take up to two songs off it.\n\nCONTRACTS\nA new contract costs the signing "
               "bonus again. Whoever you drop never comes back, and what is out keeps earning."};
}

void SignedArtistDetailViewController::describeLevels(View& view, const SignedArtist& artist) const {
  view.add(Meter{.label = withChange("Talent meter", artist.talent, artist.originalTalent),
                 .value = withCommas(artist.talent),
                 .share = shareOf(artist.talent, int64_t{100}),
                 .steps = 12});
  Gauges traits;
  traits.items = {traitGauge("Songwriting", artist.songwriting, artist.originalSongwriting),
                  traitGauge("Vocals", artist.vocals, artist.originalVocals),
                  traitGauge("Rhythm", artist.rhythm, artist.originalRhythm),
                  traitGauge("Charisma", artist.charisma, artist.originalCharisma),
                  traitGauge("Virality", artist.virality, artist.originalVirality)};
  view.add(std::move(traits));
  view.add(levelMeter("Happiness", artist.happiness));
}

void SignedArtistDetailViewController::describeAlbum(View& view, const SignedArtist& artist) const {
  if (!artist.underContract) return;
  const RecordList<SignedArtistAlbum>& albums = state().saveAllSignedArtistAlbumList;
  Rows rows;
  if (albumWaits(state(), artist)) {
    rows.items.push_back({.picture = icon("check"), .title = "Album Completed", .badge = "ALBUM"});
  } else if (artist.weeksToCompleteAlbum < 1) {
    rows.items.push_back({.picture = icon("hourglass"), .title = "Album Completed", .subtitle = "PENDING"});
  } else {
    rows.items.push_back({.picture = icon("hourglass"),
                          .title = "In Production (Est. " + std::to_string(artist.weeksToCompleteAlbum) + " Weeks)"});
  }
  const auto made = albums.historyOf(artistId_);
  if (!made.empty() && canBeTrimmed(state(), albums[made.back()])) {
    const SignedArtistAlbum& latest = albums[made.back()];
    rows.items.push_back({.picture = cover(latest.title),
                          .title = latest.title + " Drops Next Week",
                          .subtitle = "You can still take songs off it",
                          .opens = true,
                          .id = "album:" + std::to_string(latest.albumId)});
  }
  view.add(std::move(rows));
}

void SignedArtistDetailViewController::describeContract(View& view, const SignedArtist& artist) const {
  const int64_t years = (artist.weekEnd - artist.weekSigned) / weeksInYear;
  view.add(Text{.text = artist.name + " signed " + counted(years, "year") + " for " +
                        currency(static_cast<double>(artist.signingBonus)) + " and has earned " +
                        currency(earnedByArtist(game_, artistId_)) + " from a " + std::to_string(royaltyOf(artist)) +
                        "% royalty."});
  if (!artist.underContract) {
    view.add(caption(artist.name + " was dropped and is no longer under management."));
  } else if (contractIsUp(state(), artist)) {
    view.add(caption(artist.name +
                         "'s contract has ended. Any albums in progress are on pause until the contract is cancelled "
                         "or renewed.",
                     Tone::warning));
  } else {
    const int64_t left = weeksLeft(state(), artist);
    view.add(caption(counted(left, "week") + " of the contract " + (left == 1 ? "remains." : "remain.")));
  }
}

void SignedArtistDetailViewController::describeWork(View& view, const SignedArtist& artist) const {
  const std::vector<Earner> albums = albumsOf(game_, artist.artistId);
  if (albums.empty()) {
    view.add(EmptyHint{.icon = "album", .text = "Nothing is out yet. The first album is being made."});
    return;
  }
  const std::vector<Earner> songs = songsOf(game_, albums);
  view.add(Heading{"Popular Songs"});
  view.add(windowedRows("songs", songs_, static_cast<int64_t>(songs.size()), [&](size_t i) {
    const SignedArtistSong& song = state().saveAllSignedArtistSongList[songs[i].position];
    return Row{.picture = cover(song.title),
               .title = song.title,
               .subtitle = counted(song.totalListen, "stream"),
               .value = currency(songs[i].dollars)};
  }));
  view.add(Heading{"Popular Albums"});
  view.add(windowedRows("albums", albums_, static_cast<int64_t>(albums.size()), [&](size_t i) {
    const SignedArtistAlbum& album = state().saveAllSignedArtistAlbumList[albums[i].position];
    return Row{.picture = cover(album.title),
               .title = album.title,
               .subtitle = withCommas(album.albumsSold) + " sold",
               .value = currency(albums[i].dollars),
               .opens = true,
               .id = "album:" + std::to_string(album.albumId)};
  }));
}

void SignedArtistDetailViewController::describeButtons(View& view, const SignedArtist& artist) const {
  if (!artist.underContract) return;
  view.add(Button{.id = "dropButton", .label = "Drop Artist", .style = Button::Style::destructive});
  const Button coach{.id = "coachButton", .label = "COACH", .price = coachingCost(state())};
  if (contractIsUp(state(), artist)) {
    view.mainAction =
        Button{.id = "renewButton", .label = "Renew", .price = renewalCost(artist), .style = Button::Style::primary};
    view.aside = coach;
  } else if (albumWaits(state(), artist)) {
    view.mainAction =
        Button{.id = "reviewButton", .label = "REVIEW SONG LIST", .price = reviewCost, .style = Button::Style::primary};
    view.aside = coach;
  } else {
    view.mainAction = coach;
    view.mainAction->style = Button::Style::primary;
  }
}

}  // namespace backbeat
