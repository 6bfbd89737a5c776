#include "music/screens/artist_profile_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/own_photo.h"
#include "core/room.h"
#include "core/sorting.h"
#include "core/view_find.h"
#include "music/about_text.h"
#include "music/covers.h"
#include "music/screens/album_rows.h"
#include "music/screens/song_rows.h"

namespace backbeat {

namespace {

constexpr size_t popularShown = 5;
constexpr size_t videosShown = 3;

}  // namespace

Outcome ArtistProfileViewController::act(const Action& action) {
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  if (action.verb() == "album") return goTo("goToAlbumDetail", std::string(action.argument()));
  if (action.id == "goToMonthlyListenerDetail" || action.id == "goToCertification") return goTo(action.id);
  if (action.verb() == "verse") return goTo("goToFeaturedOnDetail", std::string(action.argument()));
  if (action.id == "albums") albums_.moveTo(action.value);
  if (action.id == "verses") verses_.moveTo(action.value);
  if (action.verb() == "video") return goTo("goToYouViewVideoDetail", std::string(action.argument()));
  if (action.id == "goToYouVideo") return goTo(action.id);
  if (action.id == "about") writeAbout(game_, action.value);
  if (action.id == "photo") return takePhoto(action.value);
  if (action.id == "removePhoto") return takePhoto("");
  return followLaterRooms(action);
}

Outcome ArtistProfileViewController::followLaterRooms(const Action& action) const {
  View shown;
  addLaterRooms(shown);
  const Row row = rowWithId(shown, action.id);
  return row.opens ? goTo(std::string(action.verb()), std::string(action.argument())) : Outcome{};
}

void ArtistProfileViewController::addLaterRooms(View& view) const {
  for (const Room* room : game_.rooms) {
    if (room->addToProfile) room->addToProfile(game_, view);
  }
}

Outcome ArtistProfileViewController::takePhoto(const std::string& address) {
  if (!address.empty()) {
    if (auto refusal = photoRefusal(address)) return *refusal;
  }
  game_.state.twitterProfileImage = address;
  game_.save(&GameState::twitterProfileImage);
  return success();
}

View ArtistProfileViewController::view() const {
  View view{.title = "Artist Profile"};
  view.add(Cover{.picture = artistPicture(state()),
                 .title = state().myArtistsName,
                 .text = withCommas(state().totalFans) + " monthly listeners"});
  describePopular(view);
  describeAlbums(view);
  describeVideos(view);
  describeVerses(view);
  addLaterRooms(view);
  view.add(Heading{"About"});
  view.add(TextField{.id = "about",
                     .label = "In your own words",
                     .value = state().aboutDescription,
                     .placeholder = "Tell your listeners who you are",
                     .maxLength = static_cast<int64_t>(longestAboutText),
                     .multiline = true});
  view.add(photoField(hasOwnPhoto(state())));
  if (hasOwnPhoto(state())) {
    view.add(Button{.id = "removePhoto", .label = "Remove photo", .style = Button::Style::destructive});
  }
  return view;
}

void ArtistProfileViewController::describePopular(View& view) const {
  std::vector<const Song*> songs;
  for (const Song& song : state().saveAllSongList) {
    if (song.isReleased) songs.push_back(&song);
  }
  if (songs.empty()) {
    view.add(EmptyHint{.icon = "note", .text = "Your page is empty. Release a song and the world can press play."});
    return;
  }
  sortStably(songs, [](const Song* a, const Song* b) { return a->totalListen > b->totalListen; });
  view.add(Heading{.text = "Popular", .link = Link{.id = "goToCertification", .label = "Certifications"}});
  Rows rows;
  for (size_t i = 0; i < std::min(popularShown, songs.size()); ++i) {
    Row row = songRow(state(), *songs[i]);
    row.subtitle = std::to_string(i + 1) + " · " + songs[i]->album;
    rows.items.push_back(std::move(row));
  }
  view.add(std::move(rows));
}

void ArtistProfileViewController::describeAlbums(View& view) const {
  const RecordList<Album>& albums = state().saveAllAlbumList;
  std::vector<size_t> released;
  for (size_t i = albums.size(); i-- > 0;) {
    if (albums[i].isReleased) released.push_back(i);
  }
  if (released.empty()) return;
  view.add(Heading{"Albums"});
  view.add(windowedRows("albums", albums_, static_cast<int64_t>(released.size()), [&](size_t i) {
    Row row = albumRow(state(), albums[released[i]]);
    row.subtitle = std::to_string(albums[released[i]].releaseYear) + " · " + albumFormat(albums[released[i]]);
    return row;
  }));
}

void ArtistProfileViewController::describeVerses(View& view) const {
  const RecordList<FeaturedOn>& verses = state().saveAllFeaturedOnList;
  if (verses.empty()) return;
  view.add(Heading{"Appears On"});
  view.add(windowedRows("verses", verses_, static_cast<int64_t>(verses.size()), [&](size_t i) {
    const FeaturedOn& verse = verses[verses.size() - 1 - i];
    Row row{.picture = cover(verse.title),
            .title = verse.title,
            .subtitle = verse.artistName + " · " + std::to_string(verse.releaseYear),
            .value = abbreviated(static_cast<double>(verse.totalListen)),
            .opens = true,
            .id = "verse:" + std::to_string(verse.songId)};
    if (verse.chartRanking > 0) {
      row.note = rank(verse.chartRanking);
      row.tone = Tone::warning;
    }
    return row;
  }));
}

void ArtistProfileViewController::describeVideos(View& view) const {
  std::vector<const MusicVideo*> videos;
  for (const MusicVideo& video : state().saveAllMusicVideoList) videos.push_back(&video);
  if (videos.empty()) return;
  sortStably(videos, [](const MusicVideo* a, const MusicVideo* b) { return a->totalViews > b->totalViews; });
  view.add(Heading{.text = "Music videos", .link = Link{.id = "goToYouVideo", .label = "YouVideo"}});
  Rows films{.style = Rows::Style::films};
  for (size_t i = 0; i < std::min(videosShown, videos.size()); ++i) {
    films.items.push_back({.picture = stillOf(state(), *videos[i]),
                           .title = videos[i]->songTitle,
                           .subtitle = abbreviated(static_cast<double>(videos[i]->totalViews)) + " views",
                           .opens = true,
                           .id = "video:" + std::to_string(videos[i]->videoId)});
  }
  view.add(std::move(films));
}

}  // namespace backbeat
