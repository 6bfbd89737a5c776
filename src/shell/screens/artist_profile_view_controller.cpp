#include "shell/screens/artist_profile_view_controller.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/assisted.h"
#include "core/calendar.h"
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

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> ways = {{
    {"song", "goToSongDetail"},
    {"album", "goToAlbumDetail"},
    {"verse", "goToFeaturedOnDetail"},
    {"video", "goToYouViewVideoDetail"},
}};

PhotoField headerField(const GameState& state) {
  return {.id = "header",
          .label = "Your own header",
          .note = photoLimit,
          .taken = hasOwnHeader(state),
          .shape = PhotoField::Shape::wide};
}

}  // namespace

Outcome ArtistProfileViewController::act(const Action& action) {
  for (const auto& [verb, segue] : ways) {
    if (action.verb() == verb) return goTo(std::string(segue), std::string(action.argument()));
  }
  for (const std::string_view segue : {"goToMonthlyListenerDetail", "goToCertification", "goToYouVideo"}) {
    if (action.id == segue) return goTo(action.id);
  }
  if (action.id == "albums") albums_.moveTo(action.value);
  if (action.id == "singles") singles_.moveTo(action.value);
  if (action.id == "verses") verses_.moveTo(action.value);
  if (action.id == "about") writeAbout(game_, action.value);
  if (action.id == "photo") return takeProfilePhoto(game_, action.value);
  if (action.id == "removePhoto") return takeProfilePhoto(game_, "");
  if (action.id == "header") return takeHeader(game_, action.value);
  if (action.id == "removeHeader") return takeHeader(game_, "");
  return followRooms(action);
}

Outcome ArtistProfileViewController::followRooms(const Action& action) const {
  View shown;
  addRooms(shown);
  const Row row = rowWithId(shown, action.id);
  return row.opens ? goTo(std::string(action.verb()), std::string(action.argument())) : Outcome{};
}

void ArtistProfileViewController::addRooms(View& view) const {
  for (const Room* room : game_.rooms) {
    if (room->addToProfile) room->addToProfile(game_, view);
  }
}

View ArtistProfileViewController::view() const {
  View view{.title = "Artist Profile"};
  view.add(Cover{.picture = artistPicture(state()), .title = state().myArtistsName, .back = headerPicture(state())});
  view.add(
      Tiles{{{.icon = "headphones",
              .label = "Monthly listeners",
              .value = withCommas(state().totalFans),
              .id = "goToMonthlyListenerDetail"},
             {.icon = "calendar", .label = "Making music since", .value = std::to_string(generationBegan(state()))}}});
  addAssistedMark(view, state());
  const std::vector<size_t> released = releasedSongs(state());
  describePopular(view);
  describeAlbums(view);
  describeSingles(view, released);
  describeVideos(view);
  describeVerses(view);
  addRooms(view);
  describeAbout(view);
  return view;
}

void ArtistProfileViewController::describeAbout(View& view) const {
  view.add(Heading{"About"});
  view.add(TextField{.id = "about",
                     .label = "In your own words",
                     .value = state().aboutDescription,
                     .placeholder = "Tell your listeners who you are",
                     .maxLength = static_cast<int64_t>(longestAboutText),
                     .multiline = true});
  view.add(Heading{"Pictures"});
  addPhotoField(view, photoField(hasOwnPhoto(state())));
  addPhotoField(view, headerField(state()));
}

void ArtistProfileViewController::describePopular(View& view) const {
  const std::vector<size_t> popular = mostHeard(state(), popularShown);
  if (popular.empty()) {
    view.add(EmptyHint{.icon = "note", .text = "Your page is empty. Release a song and the world can press play."});
    return;
  }
  const RecordList<Song>& songs = state().saveAllSongList;
  view.add(Heading{.text = "Popular", .link = Link{.id = "goToCertification", .label = "Certifications"}});
  Rows rows;
  for (size_t i = 0; i < popular.size(); ++i) {
    Row row = songRow(state(), songs[popular[i]]);
    row.subtitle = std::to_string(i + 1) + " · " + songs[popular[i]].album;
    rows.items.push_back(std::move(row));
  }
  view.add(std::move(rows));
}

void ArtistProfileViewController::describeSingles(View& view, const std::vector<size_t>& released) const {
  const RecordList<Song>& songs = state().saveAllSongList;
  std::vector<size_t> singles;
  for (const size_t i : released) {
    if (songs[i].albumId == 0) singles.push_back(i);
  }
  if (singles.empty()) return;
  const auto age = [&](size_t i) { return std::pair(songs[i].releaseWeek, songs[i].songId); };
  sortStably(singles, [&](size_t a, size_t b) { return age(a) > age(b); });
  view.add(Heading{"Singles"});
  view.add(windowedRows("singles", singles_, static_cast<int64_t>(singles.size()), [&](size_t i) {
    Row row = songRow(state(), songs[singles[i]]);
    row.subtitle = std::to_string(songs[singles[i]].releaseYear);
    return row;
  }));
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
