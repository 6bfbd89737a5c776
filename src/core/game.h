// What every rule is given; there is no other context.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "core/clock.h"
#include "core/game_state.h"
#include "core/label_memory.h"
#include "core/platform.h"
#include "core/random.h"
#include "core/save_file.h"
#include "core/venture_memory.h"
#include "core/week_rows.h"

namespace backbeat {

/// The weeks of streams that stand in the records.
struct StreamWeeks {
  CalendarWeek latest;
  int64_t streams = 0;      ///< of the latest
  double dollars = 0;       ///< of its best song, which alone is paid
  int64_t bestStreams = 0;  ///< of those before it
  double bestDollars = 0;
  int64_t count = 0;
};

/// How the career stands before a turn: the songs that still live, the albums that a turn may move, and what the news
/// compares.
struct MilestoneSnapshot {
  struct SongStanding {
    int64_t songId = 0;
    int64_t tier = 0;  ///< certification
    int64_t peak = 0;  ///< best rank so far, 0 when it never charted
    bool wasFirst = false;
    bool wasOnChart = false;
  };
  struct AlbumStanding {
    int64_t albumId = 0;
    int64_t tier = 0;
  };
  std::vector<SongStanding> songs;    ///< in the order of the list then
  std::vector<AlbumStanding> albums;  ///< in the order of the list
  CalendarWeek week;
  int64_t absoluteWeek = 0;  ///< 0 when no turn has run in this launch
  double cash = 0;           ///< dollars
  int64_t listeners = 0;
  int64_t mostListeners = 0;       ///< of the weeks that are remembered
  bool allListenersKnown = false;  ///< no week of the artist is older than those
  int64_t followers = 0;
  int64_t jobWeeks = 0;  ///< that the job's contract still runs
  StreamWeeks streamWeeks;
  // Of everything ever made; only while the lists hold it whole (`historyIsWhole`), since nothing is a first
  // afterwards.
  int64_t bestRank = 0;  ///< on the chart, of any own song; 0 when none charted
  int64_t bestSongTier = 0;
  int64_t bestAlbumTier = 0;
  bool wasStreamed = false;
};

/// Working values of the running turn; cleared at its first step, never saved.
struct Turn {
  MilestoneSnapshot before;              ///< how songs and albums stood when the turn began
  int64_t weeklyMarketingPoolTotal = 0;  ///< sum of this week's audiences won by marketing
  int64_t weeklyMarketingPoolCount = 0;  ///< and their number
  int64_t firstPlaceChartPosition = 0;   ///< streams that make a number one this week
  double listensWithinRangeOfChart = 0;  ///< three quarters of that
  int64_t lastPlaceChartPosition = 0;    ///< streams that enter the chart
  std::vector<int64_t> songsOnCharts;    ///< rank, streams, rank, streams ... of this week
  int64_t seatsSoldOnTourForMerch = 0;
  std::vector<VentureWeek> ventures;  ///< of which the report has something to tell
  bool madeFirstSong = false;         ///< since the last report, and never before
  bool tookFirstJob = false;          ///< the same
};

/// The terms of a label's offer while it is on the table.
struct ContractOffer {
  int64_t contractLevel = 0;
  int64_t tempCash = 0;  ///< dollars
  int64_t tempEp = 0;
  int64_t tempLp = 0;
  int64_t tempSongs = 0;
  double tempPercentageRate = 0;
  double tempStreamingRate = 0;
  int64_t tempMarketingScore = 0;
  int64_t tempViralityScore = 0;
  int64_t tempStudioScore = 0;
  int64_t tempStartDate = 0;  ///< absolute week
  int64_t tempEndDate = 0;    ///< absolute week
  double tempAlbumPricing = 0;
  double tempFeatureDiscount = 0;
  int64_t tempTourTicketCost = 0;
  double tempViewingRates = 0;
};

/// What the dating app has on its glass.
struct Dating {
  int64_t seekingPreference = 1;  ///< 1 a woman, 0 a man
  Matches candidate;              ///< on the card
  int64_t distance = 0;           ///< minutes away
  Matches pendingMatch;           ///< who liked the player back, until the next who does
  int64_t pendingSuperLike = 0;   ///< 1: the next match counts as one by star
};

/// The goals that wait to be collected, as it stood when they were last looked for.
struct GoalsInSight {
  int64_t longLook = -1;  ///< the absolute week in which all were looked for; -1 for never
  int64_t lastLook = -1;  ///< the same of those that may be over soon
  std::vector<int64_t> ids;
};

/// Working values of this launch; gone when the program ends, by design.
struct Launch {
  int64_t contractOfferState = 0;  ///< 0 none, 1 an offer waits, 2 its terms were seen
  ContractOffer contractOffer;
  bool leaderboardPassDone = false;
  int64_t weeklyFanChange = 0;                       ///< what the last week did to totalFans
  std::vector<int64_t> selectedFeaturedArtists;      ///< guests picked for the song in preparation
  std::vector<int64_t> merchSongs;                   ///< picked for the record in preparation, by id
  std::vector<int64_t> selectedCameos;               ///< faces picked for the video in preparation
  std::array<size_t, 3> lastProductionChoices = {};  ///< writer, musicians and studio of the last song, as picked
  bool musicScreenLoaded = false;                    ///< the music screen's first load has run
  int64_t exportedInYear = 0;                        ///< the year of the last export
  std::vector<int64_t> venueDemand;                  ///< the luck of each venue, in the order of their table
  std::vector<int64_t> festivalSetList;              ///< songs picked for the festival on the table
  RunningTally<StreamWeeks> streamWeeks;
  LabelMemory label;  ///< what of its history is summed already
  Dating dating;
  VentureMemory ventures;
  std::vector<int64_t> achievementsToTell;  ///< granted by this press and not told yet
  mutable GoalsInSight goalsInSight;        ///< looked for when a screen asks, now and then
  std::vector<std::string> awaitedPacks;    ///< products asked for, whose answer is still to come
};

struct Room;

struct Game {
  Game(Store& store, Random& chance, Clock& time, Platform& device)
      : saveFile(store), random(chance), clock(time), platform(device) {}

  GameState state;
  Turn turn;
  Launch launch;
  SaveFile saveFile;
  Random& random;
  Clock& clock;
  Platform& platform;

  /// Runs after any change that a visible screen has to show: see core/state_changed.h. Handed in by the shell, since
  /// the leaderboards it submits live in a later room.
  void (*leaderboardPass)(Game&) = nullptr;

  /// What the rooms bring to the glass, handed in by the shell: see core/room.h. A screen of one room lists what later
  /// rooms contribute to it.
  std::span<const Room* const> rooms;

  /// Writes scalars and lists under their keys: `save(&GameState::totalFans, &GameState::saveAllSongList)`.
  template <class... Members>
  void save(Members... members) {
    (saveOne(members), ...);
  }

 private:
  template <class T>
  void saveOne(RecordList<T> GameState::*member) {
    saveFile.writeList(keyOf(state, state.*member), state.*member);
  }
  template <class T>
  void saveOne(T GameState::*member) {
    for (const Scalar& scalar : scalars) {
      const auto* found = std::get_if<T GameState::*>(&scalar.member);
      if (found && *found == member) return saveFile.writeScalar(state, scalar);
    }
  }
};

}  // namespace backbeat
