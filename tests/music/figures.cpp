#include "music/figures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/money.h"
#include "core/numbers.h"
#include "music/album_sales.h"
#include "music/certifications.h"
#include "music/streaming.h"
#include "turn/week_cycle.h"

namespace backbeat {

namespace {

template <class T>
const T& titled(const RecordList<T>& list, std::string T::*title, std::string_view wanted) {
  return list[list.find([&](const T& one) { return one.*title == wanted; })];
}

std::string shortly(int64_t number) { return abbreviated(static_cast<double>(number)); }

}  // namespace

const Song& songTitled(const GameState& state, std::string_view title) {
  return titled(state.saveAllSongList, &Song::title, title);
}
const Album& albumTitled(const GameState& state, std::string_view title) {
  return titled(state.saveAllAlbumList, &Album::title, title);
}
const BillboardSong& chartRowTitled(const GameState& state, std::string_view title) {
  return titled(state.saveAllBillboardSongList, &BillboardSong::songTitle, title);
}

int64_t Weeks::best() const { return *std::max_element(counts.begin(), counts.end()); }

double Weeks::earned() const { return std::accumulate(dollars.begin(), dollars.end(), 0.0); }

Weeks weeksOf(const GameState& state, const Song& song) {
  Weeks found;
  for (const WeeklySongListens& week : state.saveAllWeeklySongListens) {
    if (week.songId != song.songId) continue;
    found.counts.push_back(week.songListens);
    found.dollars.push_back(week.totalStreamRevenue);
    found.weeks.push_back(week.weekNumber);
  }
  return found;
}

Weeks weeksOf(const GameState& state, const Album& album) {
  Weeks found;
  for (const WeeklyAlbumSales& week : state.saveAllWeeklyAlbumSales) {
    if (week.albumId != album.albumId) continue;
    found.counts.push_back(week.albumSales);
    found.dollars.push_back(week.albumRevenue);
    found.weeks.push_back(week.weekNumber);
  }
  return found;
}

std::string weeksLeft(double life) { return counted(truncate(std::ceil(life)), "week") + " left"; }

Standings weekFigures(const std::string& title, int64_t total, const std::string& life, const Weeks& weeks) {
  return {{title, withCommas(total)},
          {title + ": note", life},
          {title + ": points", pointsText({weeks.counts.begin(), weeks.counts.end()})}};
}

Standings weekTable(const std::string& column, const Weeks& weeks, int64_t year) {
  Standings standings;
  for (size_t i = 0; i < weeks.counts.size(); ++i) {
    const std::string when = std::to_string(weeks.weeks[i]) + ", " + std::to_string(year);
    standings.push_back({when + ": " + column, withCommas(weeks.counts[i])});
    standings.push_back({when + ": Earned", price(weeks.dollars[i])});
  }
  return standings;
}

Standings certificationFigures(const std::string& label, int64_t total, const std::string& next, int64_t asks) {
  return {{label, next + " at " + withCommas(asks)},
          {label + ": share", shareText(static_cast<double>(total) / static_cast<double>(asks))}};
}

Standings marketingFigures(Game&) {
  return {{"Flyers and friends: subtitle", "1 to 10 of 135"},
          {"Flyers and friends: price", "$500"},
          {"Local radio: subtitle", "10 to 25 of 135"},
          {"Local radio: price", "$4,500"},
          {"City campaign: subtitle", "25 to 40 of 135"},
          {"City campaign: price", "$35,000"},
          {"National campaign: subtitle", "40 to 80 of 135"},
          {"National campaign: price", "$175,000"},
          {"World campaign: subtitle", "80 to 135 of 135"},
          {"World campaign: price", "$875,000"},
          {"Set marketing: price", "$35,000"}};
}

Standings albumFigures(const GameState& state, std::string_view title) {
  const Album& album = albumTitled(state, title);
  const std::string name(title);
  const std::string way = "goToAlbumDetail " + std::to_string(album.albumId);
  if (!album.isReleased) {
    return {{name, withDecimals(album.productionRating, 1), way},
            {name + ": subtitle", counted(album.songCount, "song")},
            {name + ": note", "rating"}};
  }
  if (remainingLife(state, album) <= 0) {
    return {{name, shortly(album.albumsSold), way},
            {name + ": subtitle", "LP · " + counted(album.songCount, "song") + " · Out of print"},
            {name + ": badge", std::string(certificationName(album.albumAward))}};
  }
  return {{name, shortly(album.albumsSold), way},
          {name + ": subtitle",
           "EP · " + counted(album.songCount, "song") + " · " + weeksLeft(remainingLife(state, album))},
          {name + ": note", "+" + shortly(weeksOf(state, album).counts.back())},
          {name + ": badge", std::string(certificationName(album.albumAward))}};
}

Standings songFigures(const GameState& state, std::string_view title) {
  const Song& song = songTitled(state, title);
  const std::string name(title);
  const std::string way = "goToSongDetail " + std::to_string(song.songId);
  if (!song.isReleased) {
    return {{name, withDecimals(song.productionRating, 1), way}, {name + ": subtitle", song.album}};
  }
  const double life = remainingLife(state, song);
  Standings standings = {{name, shortly(song.totalListen), way},
                         {name + ": subtitle", song.album + " · " + (life > 0 ? weeksLeft(life) : "Silent")}};
  if (song.isExplicit >= 1) standings.push_back({name + ": badge", "E"});
  if (song.chartRanking > 0) {
    standings.push_back({name + ": note", rank(song.chartRanking)});
  } else if (life > 0) {
    standings.push_back({name + ": note", "+" + shortly(weeksOf(state, song).counts.back())});
  }
  return standings;
}

void endWeekWithoutLabel(Game& game) {
  RecordList<SignedArtistSong>& songs = game.state.saveAllSignedArtistSongList;
  for (size_t i = 0; i < songs.size(); ++i) songs.update(i, [](SignedArtistSong& song) { song.isReleased = false; });
  RecordList<SignedArtistAlbum>& albums = game.state.saveAllSignedArtistAlbumList;
  for (size_t i = 0; i < albums.size(); ++i) {
    albums.update(i, [](SignedArtistAlbum& album) { album.isReleased = false; });
  }
  runWeekCycle(game, [] {});
}

}  // namespace backbeat
