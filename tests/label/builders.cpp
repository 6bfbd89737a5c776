#include "label/builders.h"

#include "core/week_rows.h"
#include "label/departments.h"
#include "label/hiring.h"

namespace backbeat {

void foundLabel(GameState& state) {
  state.isLabelLaunched = 1;
  state.openLabelEnergyCost = 30;
  state.myLabelName = "Kite House";
  state.myLabelSlogan = "Records worth flying for";
  state.myLabelLogo = "labelOption1.png";
}

int64_t addEmployee(GameState& state, int64_t department, int64_t rating) {
  Employee employee;
  employee.employeeId = state.employeeId += 1;
  employee.employeeSalary = 60'000;
  employee.employeeDepartmentCode = department;
  employee.employeeImage = "staff" + std::to_string(employee.employeeId % staffPortraits + 1) + ".png";
  employee.employeeOriginalRating = employee.employeeRating = rating;
  employee.employeeEnergy = employee.employeeMorale = 75;
  employee.employeeBurnRate = 6;
  WeeklyLineItem salary;
  salary.title = departments[static_cast<size_t>(department)].name;
  salary.amount = static_cast<double>(weeklyPay(employee.employeeSalary));
  salary.year = state.yearNumber;
  salary.isExpense = true;
  salary.typeOfExpense = employee.employeeId;
  state.saveAllEmployeeList.append(std::move(employee));
  state.saveAllWeeklyLineItems.append(std::move(salary));
  return state.employeeId;
}

int64_t addSignedArtist(GameState& state, const std::string& name, int64_t level) {
  SignedArtist artist;
  artist.name = name;
  artist.artistId = state.signedArtistId += 1;
  artist.charisma = artist.rhythm = artist.songwriting = artist.virality = artist.vocals = level;
  artist.originalCharisma = artist.originalRhythm = artist.originalSongwriting = level;
  artist.originalVirality = artist.originalVocals = artist.originalRating = level;
  artist.talent = artist.originalTalent = 50;
  artist.yearSigned = state.yearNumber;
  artist.weekSigned = state.weekNumberForTracking;
  artist.weekEnd = state.weekNumberForTracking + 104;
  artist.labelRevenuePercentage = 0.8;
  artist.signingBonus = 200'000;
  artist.weeksToCompleteAlbum = 40;
  artist.happiness = 90;
  artist.monthlyListeners = artist.originalMonthlyListeners = 20'000 * level;
  artist.underContract = true;
  artist.totalLifetimeCost = 200'000;
  state.saveAllSignedArtistList.append(std::move(artist));
  return state.signedArtistId;
}

int64_t addSignedAlbum(GameState& state, int64_t artistId, int64_t songs, double rating) {
  SignedArtistAlbum album;
  album.albumId = state.signedArtistAlbumId += 1;
  album.artistId = artistId;
  album.title = "Album " + std::to_string(album.albumId);
  album.isReleased = true;
  album.productionRating = rating * static_cast<double>(songs) * 0.125;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  album.price = 9.99;
  album.marketingScore = 20;
  album.percentageOfEarnings = 0.8;
  for (int64_t i = 0; i < songs; ++i) {
    SignedArtistSong song;
    song.songId = state.signedArtistSongId += 1;
    song.title = "Song " + std::to_string(song.songId);
    song.albumId = album.albumId;
    song.artistId = artistId;
    song.isReleased = true;
    song.releaseWeek = album.releaseWeek;
    song.releaseYear = album.releaseYear;
    song.productionRating = rating;
    song.viralityScore = song.marketingScore = 20;
    song.features = {""};
    song.percentageOfEarnings = 0.8;
    state.saveAllSignedArtistSongList.append(std::move(song));
  }
  state.saveAllSignedArtistAlbumList.append(std::move(album));
  return state.signedArtistAlbumId;
}

void addSignedWeek(GameState& state, int64_t albumId, int64_t weeksAgo, int64_t streams) {
  const int64_t before = state.weekNumberForTracking - weeksAgo;
  const CalendarWeek week = {(before - 1) % 52 + 1, 2023 + (before - 1) / 52};
  int64_t artistId = 0;
  for (const uint32_t position : state.saveAllSignedArtistSongList.historyOf(albumId)) {
    const SignedArtistSong& song = state.saveAllSignedArtistSongList[position];
    artistId = song.artistId;
    state.saveAllSignedArtistWeeklySongListens.append({.songId = song.songId,
                                                       .artistId = artistId,
                                                       .albumId = albumId,
                                                       .songTitle = song.title,
                                                       .songListens = streams,
                                                       .weekNumber = week.week,
                                                       .yearNumber = week.year,
                                                       .totalStreamRevenue = static_cast<double>(streams) * 0.0024});
  }
  state.saveAllSignedArtistWeeklyAlbumSales.append({.albumId = albumId,
                                                    .artistId = artistId,
                                                    .albumTitle = "Album " + std::to_string(albumId),
                                                    .albumSales = 120,
                                                    .albumRevenue = 672,
                                                    .weekNumber = week.week,
                                                    .yearNumber = week.year});
}

void addSignedWeeks(GameState& state, int64_t albumId, int64_t weeks, int64_t streams) {
  for (int64_t ago = weeks; ago > 0; --ago) addSignedWeek(state, albumId, ago, streams);
}

}  // namespace backbeat
