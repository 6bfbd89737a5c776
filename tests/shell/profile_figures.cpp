#include "core/money.h"
#include "music/figures.h"
#include "play/figures.h"

namespace backbeat {

namespace {

/// Of the shop, what the artist shows.
Standings merchFigures(const GameState& state) {
  Standings standings;
  for (const Merch& product : state.saveAllMerchReleasedList) {
    if (product.showOnSpotify < 1) continue;
    const double share =
        static_cast<double>(product.remainingInventory) / static_cast<double>(product.startingInventory);
    standings.push_back(
        {product.name, price(product.pricePerUnit), "goToAdminMerch " + std::to_string(product.merchId)});
    standings.push_back({product.name + ": subtitle", withCommas(product.remainingInventory) + " units for sale"});
    standings.push_back({product.name + ": note", "of " + withCommas(product.startingInventory)});
    standings.push_back({product.name + ": badge", "Limited edition"});
    standings.push_back({product.name + ": share", shareText(share)});
  }
  return standings;
}

Standings profileFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"Monthly listeners", withCommas(state.totalFans), "goToMonthlyListenerDetail"},
                         {"Making music since", std::to_string(state.ageAtTakeover)},
                         {"In your own words", state.aboutDescription},
                         {"Certifications", "", "goToCertification"},
                         {"YouVideo", "", "goToYouVideo"}};
  int64_t place = 0;
  for (const char* title : {"Paper Boats", "Fever Line", "Glass Harbour", "Tin Roof", "Low Tide"}) {
    Standings song = songFigures(state, title);
    song[1].says = std::to_string(++place) + " · " + songTitled(state, title).album;
    standings = standings + song;
  }
  for (const char* title : {"First Light", "Old Coats"}) {
    const Album& album = albumTitled(state, title);
    Standings row = albumFigures(state, title);
    row[1].says = std::to_string(album.releaseYear) + (album.songCount < 6 ? " · EP · " : " · LP · ") +
                  counted(album.songCount, "song");
    standings = standings + row;
  }
  for (const Song& song : state.saveAllSongList) {
    if (!song.isReleased || song.albumId != 0) continue;
    Standings single = songFigures(state, song.title);
    single[1].says = std::to_string(song.releaseYear);
    standings = standings + single;
  }
  const FeaturedOn& verse = state.saveAllFeaturedOnList[0];
  standings = standings + Standings{{"Borrowed Time", abbreviated(static_cast<double>(verse.totalListen)),
                                     "goToFeaturedOnDetail 8"},
                                    {"Borrowed Time: subtitle", "Gil Ives · " + std::to_string(verse.releaseYear)},
                                    {"Borrowed Time: note", rank(83)}};
  for (const char* title : {"Old Reel", "Tin Roof", "Paper Boats"}) {
    const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
    const MusicVideo& video = videos[videos.find([&](const MusicVideo& one) { return one.songTitle == title; })];
    standings.push_back({title, "", "goToYouViewVideoDetail " + std::to_string(video.videoId)});
    standings.push_back(
        {title + std::string(": subtitle"), abbreviated(static_cast<double>(video.totalViews)) + " views"});
  }
  return standings + merchFigures(state);
}

std::vector<ScreenFigures> screens() { return {{.segue = "goToArtistProfile", .figures = profileFigures}}; }

const FiguresOf profile{.screens = screens};

}  // namespace

}  // namespace backbeat
