#include "shell/simulate/career_year.h"

#include <charconv>

#include "career/studio.h"
#include "label/departments.h"
#include "life/children.h"
#include "life/partner.h"
#include "music/chart.h"
#include "wealth/net_assets.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

void countMusic(const GameState& state, CareerYear& row) {
  for (const Song& song : state.saveAllSongList) {
    row.songs += song.isReleased ? 1 : 0;
    row.streams += song.totalListen;
  }
  for (const Album& album : state.saveAllAlbumList) {
    row.albums += album.isReleased ? 1 : 0;
    row.albumsSold += album.albumsSold;
  }
  for (const BillboardSong& hit : state.saveAllBillboardSongList) {
    if (!isOwnSong(hit)) continue;
    row.chartHits += 1;
    row.weeksAtOne += hit.weeksAtOne;
    if (row.bestRank == 0 || hit.peakPosition < row.bestRank) row.bestRank = hit.peakPosition;
  }
}

void countTheRest(const GameState& state, CareerYear& row) {
  row.videos = static_cast<int64_t>(state.saveAllMusicVideoList.size());
  row.shows = static_cast<int64_t>(state.saveAllWeeklyTourSales.size());
  for (const WeeklyTourSales& show : state.saveAllWeeklyTourSales) row.touring += show.tourRevenue;
  row.products = static_cast<int64_t>(state.saveAllMerchReleasedList.size());
  for (const Merch& product : state.saveAllMerchReleasedList) row.merch += product.totalRevenue - product.totalCost;
}

void countAssets(const GameState& state, CareerYear& row) {
  row.homes = propertiesValue(state);
  for (const InvestmentProperty& home : state.saveAllInvestmentPropertyList) row.homesPaid += home.pricePaid;
  row.garage = transportationValue(state);
  for (const Transportation& vehicle : state.saveAllTransportationOwnedList) row.garagePaid += vehicle.pricePaid;
  for (const Venture& venture : state.saveAllVentureInvestments) {
    if (venture.hasExited != venture_exit::bankrupt) row.ventures += estimateOf(venture);
    row.venturesPaid += venture.investmentAmount;
  }
}

void countLabel(const GameState& state, CareerYear& row) {
  row.ownLabel = state.isLabelLaunched;
  row.artists = activeArtists(state);
  for (const auto& week : state.saveAllSignedArtistWeeklySongListens) row.labelNet += week.totalStreamRevenue;
  for (const auto& week : state.saveAllSignedArtistWeeklyAlbumSales) row.labelNet += week.albumRevenue;
  row.labelNet -= state.totalRecordLabelCost;
}

void countLife(const GameState& state, CareerYear& row) {
  row.generation = static_cast<int64_t>(state.saveAllLegacyList.size()) + 1;
  if (const auto partner = partnerPosition(state)) row.love = state.saveAllMatchesList[*partner].relationshipState;
  for (const Matches& match : state.saveAllMatchesList) row.exes += match.relationshipState == love::ended ? 1 : 0;
  row.children = childrenInFamily(state);
  row.nominations = static_cast<int64_t>(state.saveAllMusicAwards.size());
  for (const Award& award : state.saveAllMusicAwards) row.awards += award.isWinner;
}

}  // namespace

double Column::of(const CareerYear& row) const {
  return std::visit([&](auto each) { return static_cast<double>(row.*each); }, member);
}

std::string Column::text(const CareerYear& row) const {
  if (const auto* whole = std::get_if<int64_t CareerYear::*>(&member)) return std::to_string(row.*(*whole));
  std::array<char, 400> digits;  // the longest double in full
  const auto end = std::to_chars(digits.begin(), digits.end(), of(row), std::chars_format::fixed, 2).ptr;
  return {digits.begin(), end};
}

CareerYear careerYear(const GameState& state, int64_t year) {
  CareerYear row;
  row.year = year;
  row.cash = state.totalCashAvailable;
  row.netAssets = netAssets(state);
  row.listeners = state.totalFans;
  row.followers = state.followerCount;
  row.underContract = state.underContract;
  row.energyCeiling = state.totalEnergyMax;
  row.songWriting = state.songWriting;
  row.vocalRange = state.vocalRange;
  row.rhythm = state.rhythm;
  row.charisma = state.charisma;
  row.virality = state.virality;
  row.studio = studioRating(state);
  countMusic(state, row);
  countTheRest(state, row);
  countAssets(state, row);
  countLabel(state, row);
  countLife(state, row);
  return row;
}

}  // namespace backbeat
