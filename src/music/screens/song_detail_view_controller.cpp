#include "music/screens/song_detail_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "music/album_release.h"
#include "music/covers.h"
#include "music/genres.h"
#include "music/screens/statistics.h"
#include "music/song_release.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 26;

/// Title and genre; a song from before genres were kept has its title alone.
std::string hookOf(const GameState& state, const Song& song) {
  std::string genre;
  for (const SongGenre& made : state.songGenres) {
    const auto number = static_cast<size_t>(made.genreNumber);
    if (made.songId == song.songId && number < genres.size()) genre = genres[number];
  }
  return song.title + "|" + genre;
}

Button priced(std::string id, std::string label, const Price& price, Button::Style style = Button::Style::secondary) {
  Button button;
  button.id = std::move(id);
  button.label = std::move(label);
  button.price = price;
  button.style = style;
  return button;
}

Button leading(std::string id, std::string label) {
  Button button;
  button.id = std::move(id);
  button.label = std::move(label);
  return button;
}

std::string featuring(const Song& song) {
  std::string names;
  for (size_t i = 1; i < song.features.size(); ++i) names += (i == 1 ? "feat. " : ", ") + song.features[i];
  return names;
}

}  // namespace

Outcome SongDetailViewController::act(const Action& action) {
  if (action.id == "boostProduction") return boostProduction(game_, songId_);
  if (action.id == "boostVirality") return boostVirality(game_, songId_);
  if (action.id == "releaseButton") return releaseSong(game_, songId_);
  if (action.id == "announceButton") return announceSong(state(), songId_);
  if (action.id == "marketingButton") return marketingButton();
  if (action.id == "addToAlbumButton") return addToAlbumButton();
  return {};
}

Outcome SongDetailViewController::marketingButton() const {
  const auto position = songPosition(state(), songId_);
  if (!position) return {};
  const bool isReleased = state().saveAllSongList[*position].isReleased;
  return goTo(isReleased ? "goToSongChartDetail" : "goToSetSongMarketing", std::to_string(songId_));
}

Outcome SongDetailViewController::addToAlbumButton() const {
  const auto position = songPosition(state(), songId_);
  if (!position || state().saveAllSongList[*position].isReleased) return {};
  if (albumsInProduction(state()).empty()) {
    return refuse<"🎧 No Unreleased Albums 🎧">(
        "\nCreate a new album under 'Create a Song' on the main page to add this song to an album list.");
  }
  return goTo("goToAddToAlbum", std::to_string(songId_));
}

View SongDetailViewController::view() const {
  View view;
  const auto position = songPosition(state(), songId_);
  if (!position) {
    view.title = "Song";
    view.add(EmptyHint{"note", "This song is no longer there."});
    return view;
  }
  const Song& song = state().saveAllSongList[*position];
  view.title = song.title;
  Cover head;
  head.picture = coverOf(state(), song);
  head.title = song.title;
  head.text = song.album;
  if (const std::string names = featuring(song); !names.empty()) head.text += "\n" + names;
  head.text += song.isReleased ? "\nReleased in " + std::to_string(song.releaseYear) : "\nIn production";
  if (song.isExplicit >= 1) head.badge = "E";
  head.hook = hookOf(state(), song);
  view.add(std::move(head));
  if (song.isReleased) {
    describeReleased(view, song);
  } else {
    describeProduction(view, song);
  }
  return view;
}

void SongDetailViewController::describeProduction(View& view, const Song& song) const {
  view.add(Meter{"Production rating", withDecimals(song.productionRating, 2),
                 std::clamp(song.productionRating / 100, 0.0, 1.0), Tone::plain});
  view.add(Meter{"Virality", withDecimals(song.viralityScore, 2), std::clamp(song.viralityScore / 100, 0.0, 1.0),
                 Tone::plain});
  view.add(Heading{"Before the release", {}});
  // The button tells 1.0 and the boost gives 1.5: intended.
  if (const auto cost = productionBoostCost(song)) view.add(priced("boostProduction", "Production +1.0", *cost));
  if (const auto cost = viralityBoostCost(song)) view.add(priced("boostVirality", "Virality +0.5", *cost));
  view.add(priced("announceButton", songAnnounced(state(), songId_) ? "Announced" : "Announce on Chirp", chirpCost));
  view.add(leading("marketingButton", "Marketing"));
  view.add(leading("addToAlbumButton", "Add to Album"));
  view.mainAction = priced("releaseButton", "RELEASE", releaseCost, Button::Style::primary);
  view.help = Help{"Before the release",
                   "Nothing happens to a song until it is released. Boosts and an announcement only work before "
                   "that.\n\nProduction decides how much of the audience listens, and for how many weeks the song "
                   "lives. Virality multiplies its audience in the first weeks."};
}

void SongDetailViewController::describeReleased(View& view, const Song& song) const {
  view.add(streamsChart(state(), song, weeksOnGraph));
  Tiles tiles;
  tiles.items.push_back({"star", "Rating", withDecimals(song.productionRating, 1), "", Tone::plain, ""});
  tiles.items.push_back({"flame", "Virality", withDecimals(song.viralityScore, 1), "", Tone::plain, ""});
  tiles.items.push_back({"chart", "Chart", song.chartRanking > 0 ? rank(song.chartRanking) : "–", "", Tone::plain, ""});
  view.add(std::move(tiles));
  view.add(songCertificationMeter(song));
  view.add(Text{"RELEASED", Tone::good, Text::Style::caption});
  view.add(leading("marketingButton", "Statistics"));
}

}  // namespace backbeat
