#include "play/worlds.h"

#include <functional>

#include "label/builders.h"
#include "label/departments.h"
#include "label/office.h"
#include "live/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

void furnishHead(GameState& state, int64_t week, int64_t studioPart) {
  setDate(state, week);
  furnishCareer(state, 3, 8);
  for (int64_t* part : {&state.studioAcoustic, &state.studioConsole, &state.studioComputer, &state.studioMonitors,
                        &state.studioBooth}) {
    *part = studioPart;
  }
  state.totalCashAvailable = 6'000'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 300;
}

/// Everything is ready for a label of one's own but the first day, and money for the hard years after it.
void beforeTheLabel(GameState& state) {
  furnishHead(state, 80, 15);
  state.totalCashAvailable = 40'000'000;
}

/// The studio is there, the two million are not.
void toDreamOf(GameState& state) {
  beforeTheLabel(state);
  state.totalCashAvailable = 1'999'999;
}

void firstDay(GameState& state) {
  furnishHead(state, 81, 15);
  foundLabel(state);
}

/// Good people, room for three artists, and hardly the money for one.
void atWork(GameState& state) {
  furnishHead(state, 110, 16);
  foundLabel(state);
  state.totalCashAvailable = 60'000;
  state.businessTrait4 = 45;
  for (const int64_t code : {0, 0, 1, 2, 3}) addEmployee(state, code, 88);
}

void change(GameState& state, int64_t artistId, const std::function<void(SignedArtist&)>& how) {
  state.saveAllSignedArtistList.update(static_cast<size_t>(artistId - 1), how);
}

/// A campus of fifty, some of them worn out by their artists, with perks, booths of all kinds, and no room left. Three
/// contracts are up, one of them for a year.
void fullLabel(GameState& state) {
  furnishHead(state, 420, 20);
  foundLabel(state);
  for (int64_t* trait : {&state.businessTrait1, &state.businessTrait2, &state.businessTrait3, &state.businessTrait4,
                         &state.businessTrait5}) {
    *trait = 40;
  }
  const Office& campus = offices.back();
  state.typeOfOffice = campus.typeOfOffice;
  state.officeCapacity = campus.capacity;
  state.boothMax = campus.boothMax;
  state.labelOfficeRent = campus.rent;
  state.goldBooth = state.platinumBooth = state.diamondBooth = 1;
  state.studioCapacity = 10;
  state.officePerk1 = state.officePerk6 = 1;
  state.labelEnergyBoost = state.labelMoraleBoost = 0.25;
  state.labelOfficePerkSpend = 65;
  // One of Legal for ten artists, and some of Publicity have had enough.
  for (int64_t i = 0; i < 50; ++i) {
    addEmployee(state, i == 0 ? department::legal : i % 4 == 1 ? department::sales : i % 4, 40 + i);
    if (i % 12 == 3)
      state.saveAllEmployeeList.update(static_cast<size_t>(i),
                                       [](Employee& employee) { employee.employeeMorale = 20; });
  }
  for (const char* name : {"Juno Hale", "Lil Ember", "Cassia Bloom", "Emery Vance", "Dr. Marble", "Wren Hale",
                           "Otto Marsh", "Saga Berg", "Kid Velvet", "Ada Holloway", "Lev Moreau"}) {
    addSignedArtist(state, name, 45 + 4 * state.signedArtistId);
  }
  change(state, 2, [](SignedArtist& artist) { artist.underContract = false; });
  for (const int64_t up : {3, 4, 9}) {
    change(state, up, [&](SignedArtist& artist) {
      artist.weekSigned -= 208;
      artist.weekEnd = state.weekNumberForTracking - 8 * (up - 3);
    });
  }
}

/// An artist waits for a demo, nobody is there any more to listen, and there is no money to pay anybody off.
void emptyScouts(GameState& state) {
  furnishHead(state, 130, 15);
  state.totalCashAvailable = 500;
  foundLabel(state);
  addEmployee(state, department::production, 44);
  CreatedArtist created;
  created.name = "Paper Anna";
  created.charisma = created.rhythm = created.songwriting = created.virality = created.vocals = 30;
  created.talent = 20;
  created.monthlyListeners = 15'000;
  created.demoRating = 28;
  state.saveAllCreatedArtists.append(created);
}

/// An album that came out so many weeks before.
void putOut(GameState& state, int64_t artistId, int64_t songs, double rating, int64_t weeksAgo) {
  const int64_t now = state.weekNumberForTracking;
  setDate(state, now - weeksAgo);
  addSignedAlbum(state, artistId, songs, rating);
  setDate(state, now);
}

/// What all albums have earned since they came out, each song of the first the given streams a week, the others fewer.
void earnSince(GameState& state, int64_t streams) {
  const int64_t now = state.weekNumberForTracking;
  for (int64_t ago = 60; ago > 0; --ago) {
    for (const SignedArtistAlbum& album : state.saveAllSignedArtistAlbumList) {
      if (album.releaseWeek <= now - ago) addSignedWeek(state, album.albumId, ago, streams / album.albumId);
    }
  }
}

/// Artists of three moods whose scouts have all gone: each week they like it less.
void leftByScouts(GameState& state) {
  furnishHead(state, 210, 16);
  foundLabel(state);
  for (const int64_t code : {1, 2, 3, 4}) addEmployee(state, code, 60);
  for (const char* name : {"Juno Hale", "Lil Ember", "Saga Berg"}) {
    const int64_t id = addSignedArtist(state, name, 30 + 25 * state.signedArtistId);
    change(state, id, [&](SignedArtist& artist) { artist.happiness = 124 - 61 * static_cast<double>(id - 1); });
    putOut(state, id, 8, 38, 12 * id);
  }
  earnSince(state, 4'000);
}

/// The doors were closed between two shows: a tour that nobody goes on with takes its energy every week.
void closedOnTour(GameState& state) {
  furnishHead(state, 150, 15);
  putOnTour(state, {venueOnTour("Ryman Auditorium", 2, 2'100), venueOnTour("Tabernacle", 1, 2'600)}, 30);
}

/// Every artist wants something: a review, a new contract, an hour; one has left and still earns.
void waiting(GameState& state) {
  furnishHead(state, 330, 18);
  foundLabel(state);
  state.studioCapacity = 8;
  state.totalRecordLabelCost = 1'250'000;
  for (const int64_t code : {0, 0, 1, 2, 3, 4}) addEmployee(state, code, 70);
  const int64_t ready = addSignedArtist(state, "Juno Hale", 62);
  const int64_t up = addSignedArtist(state, "Lil Ember", 48);
  const int64_t busy = addSignedArtist(state, "Cassia Bloom", 71);
  const int64_t gone = addSignedArtist(state, "Otto Marsh", 30);
  change(state, ready, [](SignedArtist& artist) {
    artist.weeksToCompleteAlbum = 0;
    artist.vocals += 3;
    artist.charisma -= 2;
  });
  change(state, up, [&](SignedArtist& artist) {
    artist.weekSigned = state.weekNumberForTracking - 104;
    artist.weekEnd = state.weekNumberForTracking;
    artist.weeksToCompleteAlbum = 0;
    artist.happiness = 43;
  });
  change(state, gone, [](SignedArtist& artist) { artist.underContract = false; });
  putOut(state, ready, 9, 41.5, 20);
  putOut(state, up, 8, 36, 35);
  putOut(state, gone, 11, 28, 60);
  earnSince(state, 9'400);
  addSignedAlbum(state, busy, 10, 52);
  FeaturedOn verse;
  verse.songId = state.featuredOnSongId += 1;
  verse.artistId = ready;
  verse.artistName = "Juno Hale";
  verse.title = "Side by Side";
  verse.isReleased = true;
  verse.isSignedArtist = 1;
  verse.releaseWeek = state.weekNumberForTracking - 3;
  verse.releaseYear = state.yearNumber;
  verse.productionRating = 40;
  verse.totalListen = 90'000;
  verse.percentageOfEarnings = 0.2;
  verse.streamPayRate = 0.003;
  state.saveAllFeaturedOnList.append(verse);
}

/// Half of the chart is the label's; one artist falls silent and another's contract ends with this week.
void stars(GameState& state) {
  furnishHead(state, 280, 20);
  foundLabel(state);
  state.studioCapacity = 12;
  for (const int64_t code : {0, 0, 1, 2, 3, 4}) addEmployee(state, code, 90);
  const int64_t star = addSignedArtist(state, "Saga Berg", 96);
  const int64_t silent = addSignedArtist(state, "Kid Velvet", 33);
  change(state, star, [](SignedArtist& artist) {
    artist.monthlyListeners = 45'000'000;
    artist.happiness = 118;
    artist.weeksToCompleteAlbum = 1;
  });
  change(state, silent, [&](SignedArtist& artist) {
    artist.weekSigned = state.weekNumberForTracking - 207;
    artist.weekEnd = state.weekNumberForTracking + 1;
  });
  putOut(state, star, 8, 88, 1);
  putOut(state, silent, 8, 30, 29);
  earnSince(state, 11'000'000);
  state.saveAllSignedArtistSongList.update(0, [](SignedArtistSong& song) { song.viralityScore = 45; });
}

const RoomWorlds worlds({{"before the label", beforeTheLabel},
                         {"label to dream of", toDreamOf},
                         {"label's first day", firstDay},
                         {"label at work", atWork},
                         {"full label", fullLabel},
                         {"label without scouts", emptyScouts},
                         {"label left by its scouts", leftByScouts},
                         {"label closed on tour", closedOnTour},
                         {"label that waits", waiting},
                         {"label of stars", stars}});

}  // namespace
}  // namespace backbeat
