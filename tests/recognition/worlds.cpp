#include "play/worlds.h"

#include "label/builders.h"
#include "music/builders.h"
#include "recognition/award_fields.h"
#include "recognition/builders.h"
#include "support/dates.h"

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

const RoomWorlds worlds({{"awards open", awardsOpen},
                         {"awards passed by", awardsPassedBy},
                         {"awards never opened", awardsNeverOpened},
                         {"awards nominated", awardsNominated},
                         {"awards night", awardsNight},
                         {"awards decided", awardsDecided}});

}  // namespace
}  // namespace backbeat
