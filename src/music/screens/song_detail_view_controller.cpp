#include "music/screens/song_detail_view_controller.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "music/album_release.h"
#include "music/covers.h"
#include "music/genres.h"
#include "music/marketing_plans.h"
#include "music/news.h"
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

std::string featuring(const Song& song) {
  std::string names;
  for (size_t i = 1; i < song.features.size(); ++i) names += (i == 1 ? "feat. " : ", ") + song.features[i];
  return names;
}

/// The song's video, or nothing; there is one at most.
const MusicVideo* videoOf(const GameState& state, int64_t songId) {
  const auto found = state.saveAllMusicVideoList.historyOf(songId);
  return found.empty() ? nullptr : &state.saveAllMusicVideoList[found.front()];
}

/// The week of its release belongs to the song.
Poster outNow(const GameState& state, const Song& song) {
  const bool isFirst = historyIsWhole(state) && isFirstRelease(state, song);
  const std::string weeks = counted(truncate(std::ceil(song.productionRating)), "week");
  return {.kicker = isFirst ? "Your first release" : "Released",
          .title = "Out now",
          .text = "It plays for " + weeks + ". End this one to hear what the world says",
          .mood = Poster::Mood::celebrate};
}

}  // namespace

Outcome SongDetailViewController::act(const Action& action) {
  if (action.id == "boostProduction") return boostProduction(game_, songId_);
  if (action.id == "boostVirality") return boostVirality(game_, songId_);
  if (action.id == "releaseButton") return releaseSong(game_, songId_);
  if (action.id == "announceButton") return announceSong(state(), songId_);
  if (action.id == "marketingButton") return marketingButton();
  if (action.id == "addToAlbumButton") return addToAlbumButton();
  if (action.id == "musicVideoButton") return musicVideoButton();
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
  if (albumsOpenTo(state(), songId_).empty()) {
    return refuse<"🎧 No Unreleased Albums 🎧">(
        "\nCreate a new album under 'Create a Song' on the main page to add this song to an album list.");
  }
  return goTo("goToAddToAlbum", std::to_string(songId_));
}

Outcome SongDetailViewController::musicVideoButton() const {
  const auto position = songPosition(state(), songId_);
  if (!position || !state().saveAllSongList[*position].isReleased) return {};
  const MusicVideo* video = videoOf(state(), songId_);
  if (!video) return goTo("goToCreateMusicVideo", std::to_string(songId_));
  return goTo("goToYouViewVideoDetail", std::to_string(video->videoId));
}

View SongDetailViewController::view() const {
  View view;
  const auto position = songPosition(state(), songId_);
  if (!position) {
    view.title = "Song";
    view.add(EmptyHint{.icon = "note", .text = "This song is no longer there."});
    return view;
  }
  const Song& song = state().saveAllSongList[*position];
  view.title = song.title;
  Cover head{.picture = coverOf(state(), song),
             .title = song.title,
             .text = song.album,
             .badge = song.isExplicit >= 1 ? "E" : "",
             .hook = hookOf(state(), song)};
  if (const std::string names = featuring(song); !names.empty()) head.text += "\n" + names;
  head.text += song.isReleased ? "\nRELEASED " + std::to_string(song.releaseYear) : "\nIn production";
  view.add(std::move(head));
  if (song.isReleased) {
    describeReleased(view, song);
  } else {
    describeProduction(view, song);
  }
  return view;
}

void SongDetailViewController::describeProduction(View& view, const Song& song) const {
  view.add(Meter{.label = "Production rating",
                 .value = withDecimals(song.productionRating, 2),
                 .share = shareOf(song.productionRating, 100.0)});
  view.add(Meter{
      .label = "Virality", .value = withDecimals(song.viralityScore, 2), .share = shareOf(song.viralityScore, 100.0)});
  const auto& songs = state().saveAllSongList;
  if (std::none_of(songs.begin(), songs.end(), [](const Song& other) { return other.isReleased; })) {
    view.add(hint("A song lives as many weeks as its rating: " +
                  counted(truncate(std::ceil(song.productionRating)), "week") + " for this one."));
  }
  view.add(Heading{"Before the release"});
  // The button tells 1.0 and the boost gives 1.5: intended.
  if (const auto cost = productionBoostCost(song)) {
    view.add(Button{.id = "boostProduction", .label = "Production +1.0", .price = cost});
  }
  if (const auto cost = viralityBoostCost(song)) {
    view.add(Button{.id = "boostVirality", .label = "Virality +0.5", .price = cost});
  }
  Rows ways;
  if (songAnnounced(state(), songId_)) {
    ways.items.push_back({.picture = icon("chirp"),
                          .title = "Announced",
                          .subtitle = "Your followers know of it",
                          .selected = true,
                          .id = "announceButton"});
  } else {
    view.add(Button{.id = "announceButton", .label = "Announce on Chirp", .price = chirpCost});
  }
  ways.items.push_back(wayTo("marketingButton", "megaphone", "Marketing", "Brings listeners once it is out",
                             withDecimals(song.marketingScore, 0)));
  ways.items.back().note = "of " + std::to_string(mostMarketing);
  ways.items.push_back(wayTo("addToAlbumButton", "album", "Add to album"));
  view.add(std::move(ways));
  view.mainAction =
      Button{.id = "releaseButton", .label = "RELEASE", .price = releaseCost, .style = Button::Style::primary};
  view.help = Help{.title = "Before the release",
                   .text =
                       "Nothing happens to a song until it is released. Boosts and an announcement only work before "
                       "that.\n\nProduction decides how much of the audience listens, and for how many weeks the song "
                       "lives. Virality multiplies its audience in the first weeks."};
}

void SongDetailViewController::describeReleased(View& view, const Song& song) const {
  if (song.releaseWeek == state().weekNumberForTracking) view.add(outNow(state(), song));
  view.add(streamsChart(state(), song, weeksOnGraph));
  view.add(
      Tiles{{{.icon = "star", .label = "Rating", .value = withDecimals(song.productionRating, 1)},
             {.icon = "flame", .label = "Virality", .value = withDecimals(song.viralityScore, 1)},
             {.icon = "chart", .label = "Chart", .value = song.chartRanking > 0 ? rank(song.chartRanking) : "–"}}});
  view.add(songCertificationMeter(song));
  Rows more;
  if (song.marketingScore > 0) {
    more.items.push_back({.picture = icon("megaphone"),
                          .title = "Marketing",
                          .subtitle = "Still brings new listeners",
                          .value = withDecimals(song.marketingScore, 0),
                          .note = "left"});
  }
  const MusicVideo* video = videoOf(state(), songId_);
  more.items.push_back(wayTo("musicVideoButton", "video", "MUSIC VIDEO",
                             video ? "On your channel" : "Nobody has filmed it yet",
                             video ? abbreviated(static_cast<double>(video->totalViews)) + " views" : ""));
  view.add(std::move(more));
  view.add(Button{.id = "marketingButton", .label = "Statistics"});
}

}  // namespace backbeat
