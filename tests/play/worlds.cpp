#include "play/worlds.h"

#include <array>
#include <string>

#include "core/new_game.h"
#include "support/world.h"

namespace backbeat {

namespace {

void furnishCareer(GameState& state, int64_t songs, int64_t weeksEach) {
  state.myArtistsName = "Mara Voss";
  state.promptToEnterName = 1;
  state.loginCount = 1;
  state.totalFans = 40'000;
  state.followerCount = 9'000;
  for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
    *skill = 20;
  }
  for (int64_t i = 0; i < songs; ++i) {
    const int64_t id = firstWorldSong + 3 * i;
    Song song = releasedSong(id, "Song No. " + std::to_string(i + 1));
    song.releaseYear = state.yearNumber;
    song.releaseWeek = state.weekNumberForTracking;
    song.totalListen = 10'000 * (i + 1);
    state.saveAllSongList.append(song);
    state.songId = id;
  }
  for (int64_t ago = weeksEach; ago > 0; --ago) {
    const int64_t absolute = state.weekNumberForTracking - ago;
    for (int64_t i = 0; i < songs; ++i) {
      WeeklySongListens row;
      row.songId = firstWorldSong + 3 * i;
      row.songTitle = "Song No. " + std::to_string(i + 1);
      row.weekNumber = (absolute - 1) % 52 + 1;
      row.yearNumber = 2023 + (absolute - 1) / 52;
      row.songListens = 1'000 + 10 * i;
      state.saveAllWeeklySongListens.append(row);
    }
  }
  Album out = releasedAlbum(20, "First Light");
  out.releaseWeek = state.weekNumberForTracking;
  out.releaseYear = state.yearNumber;
  state.saveAllAlbumList.append(out);
  Album coming = out;
  coming.albumId = state.albumId = 23;
  coming.title = "Second Wind";
  coming.isReleased = false;
  coming.songCount = 2;
  state.saveAllAlbumList.append(coming);
  for (const char* title : {"Not Out Yet", "Nor This"}) {
    state.songId += 3;
    Song song = songInProduction(state.songId, title);
    song.album = coming.title;
    song.albumId = coming.albumId;
    state.saveAllSongList.append(song);
  }
}

void setDate(GameState& state, int64_t absoluteWeek) {
  state.weekNumberForTracking = absoluteWeek;
  state.weekNumber = (absoluteWeek - 1) % 52 + 1;
  state.yearNumber = 2023 + (absoluteWeek - 1) / 52;
}

void fresh(GameState&) {}

void rich(GameState& state) {
  setDate(state, 60);
  furnishCareer(state, 5, 20);
  state.totalFans = 25'000'000;
  state.totalCashAvailable = 900'000'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 20'000;
}

void signedArtist(GameState& state) {
  setDate(state, 30);
  furnishCareer(state, 3, 8);
  state.totalCashAvailable = 80'000;
  state.totalEnergyAvailable = 400;
  state.underContract = 1;
  ContractLabel label;
  label.recordLabel = "Harbour Lights";
  label.initialCash = 50'000;
  label.numberOfSongs = 2;
  label.numberOfEP = 1;
  label.labelPercentageRate = 0.4;
  label.labelStreamingRate = 0.004;
  label.contractStartWeek = 25;
  label.contractEndWeek = 31;
  label.albumPricing = 8.99;
  label.featureDiscounts = 0.8;
  state.saveAllContractLabelList.append(label);
}

void inDebt(GameState& state) {
  setDate(state, 51);  // the year turns soon
  furnishCareer(state, 1, 3);
  state.totalCashAvailable = -75'000;
  state.totalEnergyAvailable = 0;
  state.totalEnergyMax = 3;  // tired too: hardly anything can be paid for
  state.followerCount = -40;
}

/// Ten years in: hits on the chart and one that left it, certified songs, a contract whose terms are met.
void midCareer(GameState& state) {
  setDate(state, 520);
  furnishCareer(state, 12, 30);
  state.totalFans = 6'000'000;
  state.totalCashAvailable = 2'500'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 300;
  state.underContract = 1;
  ContractLabel met;
  met.recordLabel = "Still Water";
  met.contractStartWeek = 470;
  met.contractEndWeek = 600;
  met.albumPricing = 8.99;
  met.featureDiscounts = 0.8;
  state.saveAllContractLabelList.append(met);
  for (int64_t place = 0; place < 6; ++place) {
    const bool left = place == 5;
    BillboardSong row;
    row.songId = firstWorldSong + 3 * place;
    row.songTitle = "Song No. " + std::to_string(place + 1);
    row.weeklySongListens = 30'000'000 - 2'000'000 * place;
    row.rankThisWeek = left ? row.songId + 1000 : 1 + 4 * place;
    row.rankLastWeek = 2 + 4 * place;
    row.peakPosition = 1 + 4 * place;
    row.weeksAtOne = place == 0 ? 3 : 0;
    row.weeksOnChart = 8;
    row.yearDebut = row.yearCurrent = state.yearNumber;
    row.weekNumber = state.weekNumberForTracking - 8;
    row.isOnCharts = !left;
    state.saveAllBillboardSongList.append(row);
    const size_t position = state.saveAllSongList.find([&](const Song& song) { return song.songId == row.songId; });
    state.saveAllSongList.update(position, [&](Song& song) {
      song.totalListen = 150'000'000 * (place + 1);
      song.productionRating = 95;
      song.chartRanking = left ? 0 : row.rankThisWeek;
    });
  }
}

void ninetyNinthYear(GameState& state) {
  setDate(state, 98 * 52 + 45);
  furnishCareer(state, 30, 60);
  state.totalFans = 80'000'000;
  state.totalCashAvailable = 3e9;
  state.totalEnergyMax = 25;
  state.totalEnergyAvailable = 900;
}

}  // namespace

std::span<const NamedWorld> namedWorlds() {
  static constexpr std::array<NamedWorld, 7> worlds = {{
      {"new", fresh},
      {"rich", rich},
      {"signed", signedArtist},
      {"mid-career", midCareer},
      {"in debt", inDebt},
      {"restarted", rich, false, restartGame},
      {"ninety-ninth year", ninetyNinthYear, true},
  }};
  return worlds;
}

void settleInto(Store& store, const NamedWorld& world) {
  SeededRandom random(1);
  SetClock clock;
  QuietPlatform platform;
  Game game(store, random, clock, platform);
  world.furnish(game.state);
  forEachField<GameState>([&](const auto& field) { game.save(field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(game.state, scalar);
  game.saveFile.commit();
  if (world.afterwards) world.afterwards(game);
  game.saveFile.commit();
}

}  // namespace backbeat
