#include "wealth/career_records.h"

#include <algorithm>
#include <map>

#include "core/money.h"
#include "core/most.h"
#include "core/short_money.h"
#include "music/chart.h"

namespace backbeat {

namespace {

constexpr const char* nothing = "-";

std::string amountOf(int64_t count, const char* noun) { return abbreviated(static_cast<double>(count)) + " " + noun; }

/// The tour that took in the most, all its venues together.
RecordLine bestTour(const GameState& state) {
  std::map<int64_t, int64_t> gross;
  for (const MusicTour& venue : state.saveAllMusicTourList) gross[venue.tourId] += venue.grossRevenue;
  RecordLine line{"Tour (Highest Grossing)", nothing};
  int64_t most = 0;
  for (const MusicTour& venue : state.saveAllMusicTourList) {
    if (gross[venue.tourId] <= most) continue;
    most = gross[venue.tourId];
    line.value = venue.tourTitle;
    line.note = abbreviatedDollars(static_cast<double>(most));
  }
  return line;
}

RecordLine fastestSale(const GameState& state) {
  RecordLine line{"Fastest Time to Sell Out Merch", nothing};
  int64_t fastest = 0;
  for (const Merch& product : state.saveAllMerchReleasedList) {
    if (product.minutesToSellOut <= 0 || (fastest > 0 && product.minutesToSellOut >= fastest)) continue;
    fastest = product.minutesToSellOut;
    line.value = counted(fastest, "minute");
    line.note = product.name;
  }
  return line;
}

/// Of the artist's own songs and verses; those of the label's artists are theirs.
void addChartLines(const GameState& state, std::vector<RecordLine>& lines) {
  int64_t hits = 0;
  int64_t numberOnes = 0;
  const BillboardSong* longestOne = nullptr;
  const BillboardSong* longest = nullptr;
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (isOfTheLabel(row)) continue;
    ++hits;
    if (row.weeksAtOne > 0) ++numberOnes;
    if (row.weeksAtOne > (longestOne ? longestOne->weeksAtOne : 0)) longestOne = &row;
    if (row.weeksOnChart > (longest ? longest->weeksOnChart : 0)) longest = &row;
  }
  lines.push_back({"Billboard Hits", withCommas(hits), withCommas(numberOnes) + " #1s"});
  lines.push_back({"Longest #1", longestOne ? longestOne->songTitle : nothing,
                   longestOne ? counted(longestOne->weeksAtOne, "week") : ""});
  lines.push_back(
      {"Most Weeks On", longest ? longest->songTitle : nothing, longest ? counted(longest->weeksOnChart, "week") : ""});
}

void addFestivalLines(const GameState& state, std::vector<RecordLine>& lines) {
  const Festival* headline = nullptr;
  for (const Festival& festival : state.saveAllFestivalList) {
    if (festival.isHeadliner >= 1 && festival.audience > (headline ? headline->audience : 0)) headline = &festival;
  }
  const Festival* crowd = recordWithMostOfAny(state.saveAllFestivalList, &Festival::audience);
  const Festival* paid = recordWithMostOfAny(state.saveAllFestivalList, &Festival::payment);
  const auto line = [](const char* label, const Festival* festival, std::string note) {
    return RecordLine{label, festival ? festival->festivalName : nothing, festival ? std::move(note) : ""};
  };
  lines.push_back(line("Festival (Largest Audience)", crowd, crowd ? amountOf(crowd->audience, "people") : ""));
  lines.push_back(
      line("Festival (Largest Headline Show)", headline, headline ? amountOf(headline->audience, "people") : ""));
  lines.push_back(line("Festival (Largest Payment)", paid, paid ? abbreviatedDollars(paid->payment) : ""));
}

}  // namespace

std::vector<RecordLine> careerRecords(const GameState& state) {
  const Album* album = recordWithMostOfAny(state.saveAllAlbumList, &Album::albumsSold);
  const Song* song = recordWithMostOfAny(state.saveAllSongList, &Song::totalListen);
  const MusicVideo* video = recordWithMostOfAny(state.saveAllMusicVideoList, &MusicVideo::totalViews);
  const auto count = [](size_t number) { return withCommas(static_cast<int64_t>(number)); };
  int64_t explicitSongs = 0;
  for (const Song& each : state.saveAllSongList) explicitSongs += each.isExplicit >= 1 ? 1 : 0;
  std::vector<RecordLine> lines = {
      {"Album (Most Popular)", album ? album->title : nothing, album ? amountOf(album->albumsSold, "sold") : ""},
      {"Song (Most Popular)", song ? song->title : nothing, song ? amountOf(song->totalListen, "plays") : ""},
      bestTour(state),
      {"Music Video (Most Popular)", video ? video->songTitle : nothing,
       video ? amountOf(video->totalViews, "views") : ""}};
  addChartLines(state, lines);
  lines.push_back({"# Merch Released", count(state.saveAllMerchReleasedList.size())});
  lines.push_back(fastestSale(state));
  addFestivalLines(state, lines);
  lines.push_back({"GRAM Nominations", count(state.saveAllMusicAwards.size())});
  lines.push_back({"Songs (Explicit)", withCommas(explicitSongs)});
  lines.push_back({"Songs Featured On", count(state.saveAllFeaturedOnList.size())});
  lines.push_back({"#1 Venture Exit (Net)", state.biggestExit > 0 ? abbreviatedDollars(state.biggestExit) : nothing});
  return lines;
}

}  // namespace backbeat
