#include "play/worlds.h"

#include "label/builders.h"
#include "life/builders.h"
#include "live/builders.h"
#include "merch/builders.h"
#include "music/builders.h"
#include "recognition/award_fields.h"
#include "recognition/builders.h"
#include "support/dates.h"
#include "video/builders.h"

namespace backbeat {
namespace {

constexpr int64_t pop = 11;
constexpr int64_t jazz = 8;

/// A year of songs that rate, in the given week of 2026.
void furnishYear(GameState& state, int64_t week) {
  setDate(state, 3 * 52 + week);
  furnishCareer(state, 3, 8);
  state.totalFans = 600'000;
  state.totalCashAvailable = 90'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 80;
  addSongOfYear(state, "Paper Lanterns", 93, pop);
  addSongOfYear(state, "Half Past Nowhere", 88.5, jazz);
  addAlbumOfYear(state, "Night Maps", 101, pop);
}

/// The week before the nominations, with a label that competes, too.
void awardsOpen(GameState& state) {
  furnishYear(state, 41);
  foundLabel(state);
  addSignedArtist(state, "Juno Hale", 70);
  addLabelSongOfYear(state, 1, "Glass Weather", 81);
  addLabelAlbumOfYear(state, 1, "Ten Stories Down", 77);
}

/// The week of the nominations, their report closed without a look.
void awardsPassedBy(GameState& state) { furnishYear(state, 42); }

/// Nobody looked in time: there is nothing to win in seven days.
void awardsNeverOpened(GameState& state) { furnishYear(state, 48); }

void nominateYear(GameState& state) {
  openNominations(state);
  addNomination(state, nominationFor(state, award_type::record, "Paper Lanterns"));
  addNomination(state, nominationFor(state, award_type::album, "Night Maps"));
  addNomination(state, nominationFor(state, award_type::song, "Half Past Nowhere"));
  addNomination(state, nominationFor(state, award_type::genreSong, "Half Past Nowhere", jazz));
}

/// A week before the winners are told, with four nominations, and two of another year.
void awardsNominated(GameState& state) {
  furnishYear(state, 48);
  Award early = nominationFor(state, award_type::genreSong, "Song No. 1", pop);
  early.yearAwarded -= 1;
  addNomination(state, early);
  early.songOrAlbumName = "Song No. 2";
  early.isWinner = 1;
  addNomination(state, early);
  nominateYear(state);
}

/// Awards night, before the envelopes.
void awardsNight(GameState& state) {
  furnishYear(state, 49);
  nominateYear(state);
}

/// The week after the night, with more nominations behind than one page holds.
void awardsDecided(GameState& state) {
  furnishYear(state, 50);
  putOnChart(state, firstWorldSong, 40, 300'000);
  for (int64_t i = 0; i < 70; ++i) {
    Award old = nominationFor(state, award_type::genreSong, "Song No. " + std::to_string(i % 3 + 1), i % 16);
    old.yearAwarded = 2023 + i / 25;
    old.isWinner = i % 9 == 0 ? 1 : 0;
    addNomination(state, old);
  }
  nominateYear(state);
  state.saveAllMusicAwards.update(70, [](Award& award) { award.isWinner = 1; });
  state.awardYear.update(0, [](AwardYear& year) { year.stage = award_stage::decided; });
}

/// The last week of 2031, after two years that have something to tell of everything, with more songs than one page
/// holds; goals wait to be looked for, and so does the perfect partner.
void yearsEnd(GameState& state) {
  setDate(state, 9 * 52);
  furnishCareer(state, 70, 60);
  state.totalFans = 2'400'000;
  state.totalCashAvailable = 4'200'000;
  state.totalEnergyMax = 90;
  state.totalEnergyAvailable = 400;
  state.rejectionCount = 29;
  state.followerCount = 900'000;
  state.mostPopularSongHighScore = 90'000'000;
  state.totalFanHighScore = 2'400'000;
  state.careerId = 7;
  putOnChart(state, firstWorldSong, 3, 2'400'000);
  putOnTour(state, {venueOnTour("Harbour Bowl", 1, 2'500)}, 0);
  state.onTour = 0;
  for (const int64_t week : {20, 21, 22, 40}) {
    WeeklyTourSales show;
    show.tourId = state.tourId;
    show.tourStadium = "Harbour Bowl";
    show.seatsSold = 2'000 + week;
    show.soldOut = week == 40 ? 0 : 1;
    show.tourRevenue = 300'000;
    show.weekNumber = week;
    show.yearNumber = 2031;
    state.saveAllWeeklyTourSales.append(show);
  }
  const int64_t merchId = stock(state, tShirt("Lantern Tee"));
  for (const int64_t week : {8 * 52 - 20, 8 * 52 + 10, 8 * 52 + 30}) addSale(state, merchId, week, 700);
  addVideo(state, videoOf(state, firstWorldSong), 30);
  for (int64_t ago = 90; ago > 0; ago -= 10) addVideoViews(state, state.saveAllMusicVideoList[0], ago, 40'000 + ago);
  Festival festival = festivalIn(state, -20, "Meadow Days");
  festival.isHeadliner = 1;
  book(state, festival);
  for (const int64_t won : {0, 1}) {
    Award award = nominationFor(state, award_type::song, won == 1 ? "Song No. 1" : "Song No. 2");
    award.isWinner = won;
    addNomination(state, award);
  }
  Matches perfect = somebody(state, "Theo");
  perfect.beauty = perfect.intelligence = perfect.personality = 100;
  addMatch(state, perfect);
}

const RoomWorlds worlds({{"end of a year", yearsEnd, true},
                         {"awards open", awardsOpen},
                         {"awards passed by", awardsPassedBy},
                         {"awards never opened", awardsNeverOpened},
                         {"awards nominated", awardsNominated},
                         {"awards night", awardsNight},
                         {"awards decided", awardsDecided}});

}  // namespace
}  // namespace backbeat
