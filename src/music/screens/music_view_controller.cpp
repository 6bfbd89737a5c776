#include "music/screens/music_view_controller.h"

#include <utility>

#include "career/ledger.h"
#include "core/menu.h"
#include "core/money.h"
#include "core/own_photo.h"
#include "core/record_codec.h"
#include "core/sorting.h"
#include "music/album_release.h"
#include "music/screens/album_rows.h"
#include "music/screens/song_rows.h"
#include "music/song_creation.h"

namespace backbeat {

namespace {

constexpr std::string_view oldSongListKey = "AllSongList";
/// Below a longer list nobody would find the menu.
constexpr size_t shortList = 4;

std::vector<size_t> releasedAlbums(const GameState& state) {
  std::vector<size_t> positions;
  for (size_t i = 0; i < state.saveAllAlbumList.size(); ++i) {
    if (state.saveAllAlbumList[i].isReleased) positions.push_back(i);
  }
  return positions;
}

std::vector<size_t> songsInProduction(const GameState& state) {
  std::vector<size_t> positions;
  for (size_t i = 0; i < state.saveAllSongList.size(); ++i) {
    if (!state.saveAllSongList[i].isReleased) positions.push_back(i);
  }
  return positions;
}

/// The latest release first; the list itself is in the order of virality.
std::vector<size_t> latestSongs(const GameState& state) {
  const RecordList<Song>& songs = state.saveAllSongList;
  std::vector<size_t> positions = releasedSongs(state);
  const auto age = [&](size_t i) { return std::pair(songs[i].releaseWeek, songs[i].songId); };
  sortStably(positions, [&](size_t a, size_t b) { return age(a) > age(b); });
  return positions;
}

}  // namespace

Outcome MusicViewController::open() {
  if (game_.launch.musicScreenLoaded) return {};
  game_.launch.musicScreenLoaded = true;
  ensureBasicNeeds(game_);
  if (const auto blob = game_.saveFile.object(oldSongListKey)) {
    if (auto songs = decodeRecords<Song>(*blob)) game_.state.saveAllSongList.assign(std::move(*songs));
  }
  return {};
}

Outcome MusicViewController::appear() {
  if (game_.state.promptToEnterName == 0) return goTo("goToEnterName");
  const size_t songs = state().saveAllSongList.size();
  if (songs > std::exchange(songsSeen_, songs)) showsAlbums_ = false;  // the new one is in sight
  return toNewAlbum();
}

Outcome MusicViewController::act(const Action& action) {
  if (action.id == "createSongButton") return createSongButton();
  if (action.id == "createAlbumButton") return createAlbumButton();
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  if (action.verb() == "album") return goTo("goToAlbumDetail", std::string(action.argument()));
  if (action.id == "released") released_.moveTo(action.value);
  if (action.id == "releasedAlbums") releasedAlbums_.moveTo(action.value);
  if (action.id == "kind") {
    if (const auto number = optionNumber(action.value, 2)) showsAlbums_ = *number == 1;
  }
  return followMenu(game_, musicTab, action);
}

Outcome MusicViewController::createSongButton() {
  game_.state.songId += 1;
  game_.state.albumId += 1;
  game_.state.loginCount = 1;
  game_.save(&GameState::songId, &GameState::albumId, &GameState::loginCount);
  return goTo("goToCreateASong");
}

Outcome MusicViewController::createAlbumButton() {
  albumIdBefore_ = state().albumId;
  return goTo("goToCreateAnAlbum");
}

Outcome MusicViewController::toNewAlbum() {
  const auto before = std::exchange(albumIdBefore_, std::nullopt);
  const RecordList<Album>& albums = state().saveAllAlbumList;
  if (!before || albums.empty() || albums.back().albumId <= *before) return {};
  showsAlbums_ = true;
  return goTo("goToAlbumDetail", std::to_string(albums.back().albumId));
}

View MusicViewController::view() const {
  View view{.title = "Music",
            .subtitle = counted(static_cast<int64_t>(releasedSongs(state()).size()), "song") + " and " +
                        counted(static_cast<int64_t>(releasedAlbums(state()).size()), "album") + " released",
            .picture = artistPicture(state())};
  view.add(Button{.id = "createSongButton",
                  .label = "Create a Song",
                  .price = Price{.energy = songEnergy},
                  .style = Button::Style::primary,
                  .pulse = state().loginCount == 0});
  view.add(Button{.id = "createAlbumButton", .label = "Create an Album"});
  const bool menuFirst = state().saveAllSongList.size() > shortList;
  // What is being worked on is pressed every week, and stands above the menu as long as it leaves that in sight.
  const std::vector<size_t> inProduction = showsAlbums_ ? std::vector<size_t>() : songsInProduction(state());
  const bool workFirst = menuFirst && inProduction.size() <= shortList;
  if (workFirst) describeSongsInProduction(view, inProduction);
  if (menuFirst) addMenu(view, game_, musicTab);
  view.add(Choice{.id = "kind",
                  .label = "Your music",
                  .options = {{.label = "Songs"}, {.label = "Albums"}},
                  .selected = showsAlbums_ ? 1 : 0,
                  .style = Choice::Style::segments});
  if (showsAlbums_) {
    describeAlbums(view);
  } else {
    if (!workFirst) describeSongsInProduction(view, inProduction);
    describeReleasedSongs(view);
  }
  if (!menuFirst) addMenu(view, game_, musicTab);
  return view;
}

void MusicViewController::describeSongsInProduction(View& view, const std::vector<size_t>& inProduction) const {
  if (inProduction.empty()) return;
  view.add(Heading{"In production"});
  Rows rows;
  for (const size_t i : inProduction) rows.items.push_back(songRow(state(), state().saveAllSongList[i]));
  view.add(std::move(rows));
}

void MusicViewController::describeReleasedSongs(View& view) const {
  const RecordList<Song>& songs = state().saveAllSongList;
  if (songs.empty()) {
    view.add(EmptyHint{.icon = "note",
                       .text = "No songs yet. Write one, release it, and end the week to hear what the world says."});
  }
  const std::vector<size_t> released = latestSongs(state());
  if (released.empty()) return;
  view.add(Heading{"Released"});
  view.add(windowedRows("released", released_, static_cast<int64_t>(released.size()),
                        [&](size_t i) { return songRow(state(), songs[released[i]]); }));
}

void MusicViewController::describeAlbums(View& view) const {
  const RecordList<Album>& albums = state().saveAllAlbumList;
  const std::vector<size_t> inProduction = albumsInProduction(state());
  const std::vector<size_t> released = releasedAlbums(state());
  if (inProduction.empty() && released.empty()) {
    view.add(
        EmptyHint{.icon = "album", .text = "No albums yet. Create one, put three songs on it, and give it a price."});
  }
  if (!inProduction.empty()) {
    view.add(Heading{"In production"});
    Rows rows;
    for (const size_t i : inProduction) rows.items.push_back(albumRow(state(), albums[i]));
    view.add(std::move(rows));
  }
  if (!released.empty()) {
    view.add(Heading{"Released"});
    view.add(windowedRows("releasedAlbums", releasedAlbums_, static_cast<int64_t>(released.size()),
                          [&](size_t i) { return albumRow(state(), albums[released[released.size() - 1 - i]]); }));
  }
}

}  // namespace backbeat
