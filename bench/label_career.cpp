#include "label_career.h"

#include <string>

#include "family_career.h"
#include "heavy_career.h"
#include "label/album_review.h"
#include "label/artist_contract.h"
#include "label/departments.h"
#include "label/hiring.h"
#include "label/offer.h"
#include "label/office.h"
#include "label/roster.h"

namespace backbeat {

namespace {

constexpr int64_t level = 88;  // of staff and artists
constexpr int64_t studioPart = 20;
constexpr int64_t businessTrait = 45;
constexpr double levelMood = 65;  // neither rises nor falls
constexpr int64_t listenersOfAnArtist = 2'000'000;
constexpr SigningTerms sureTerms = {.contractLength = 5, .chanceToSign = 400};

struct LabelSize {
  int64_t artists = 0;
  int64_t staff = 0;
};

void openTheDoors(Game& game, const LabelSize& size) {
  GameState& state = game.state;
  state.myLabelName = "Kite House";
  state.myLabelSlogan = "Records worth flying for";
  state.myLabelLogo = "labelOption1.png";
  for (int64_t* part : {&state.studioAcoustic, &state.studioConsole, &state.studioComputer, &state.studioMonitors,
                        &state.studioBooth}) {
    *part = studioPart;
  }
  for (int64_t* trait : {&state.businessTrait1, &state.businessTrait2, &state.businessTrait3, &state.businessTrait4,
                         &state.businessTrait5}) {
    *trait = businessTrait;
  }
  state.studioCapacity = size.artists;
  setOffice(game, offices.back());
  for (int64_t i = 0; i < size.staff; ++i) {
    hireEmployee(game, {.energy = level,
                        .morale = level,
                        .portrait = i % staffPortraits + 1,
                        .rating = level,
                        .salary = 120'000,
                        .department = i % int64_t{departmentCount},
                        .burnRate = 4});
  }
  labelChanged(game);
}

void rest(GameState& state) { state.totalEnergyAvailable = state.totalEnergyMax; }

void signAnother(Game& game) {
  rest(game.state);
  makeOffer(game,
            {.name = "Artist " + std::to_string(game.state.signedArtistId + 1),
             .songwriting = level,
             .vocals = level,
             .rhythm = level,
             .charisma = level,
             .virality = level,
             .talent = level,
             .monthlyListeners = listenersOfAnArtist},
            sureTerms);
}

void keepStaff(GameState& state) {
  for (size_t i = 0; i < state.saveAllEmployeeList.size(); ++i) {
    state.saveAllEmployeeList.update(i, [](Employee& employee) {
      employee.employeeEnergy = employee.employeeMorale = levelMood;
      employee.employeeRating = level;
    });
  }
}

/// Whatever one of the artists waits for; their level stays.
void lookAfter(Game& game, size_t position) {
  const SignedArtist artist = game.state.saveAllSignedArtistList[position];
  if (contractIsUp(game.state, artist)) renewContract(game, artist.artistId);
  reviewSongList(game, artist.artistId);
  game.state.saveAllSignedArtistList.update(position, [](SignedArtist& kept) { kept.happiness = levelMood; });
}

void runLabel(Game& game, const LabelSize& size) {
  GameState& state = game.state;
  if (state.saveAllEmployeeList.empty()) openTheDoors(game, size);
  while (activeArtists(state) < size.artists) signAnother(game);
  keepStaff(state);
  for (size_t i = 0; i < state.saveAllSignedArtistList.size(); ++i) {
    rest(state);
    lookAfter(game, i);
  }
  game.save(&GameState::saveAllEmployeeList, &GameState::saveAllSignedArtistList, &GameState::totalEnergyAvailable);
  game.saveFile.commit();
}

}  // namespace

void liveEverythingWeek(Game& game) {
  liveWeek(game);
  runLabel(game, {.artists = 20, .staff = 35});
  liveFamilyWeek(game);
}

void liveFullLabelWeek(Game& game) {
  liveWeek(game);
  runLabel(game, {.artists = 103, .staff = 50});
}

size_t signedRowsIn(const GameState& state) {
  return state.saveAllSignedArtistWeeklySongListens.size() + state.saveAllSignedArtistWeeklyAlbumSales.size();
}

}  // namespace backbeat
