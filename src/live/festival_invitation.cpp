#include "live/festival_invitation.h"

#include <algorithm>

#include "career/skill.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/name_pools.h"
#include "core/text.h"
#include "live/festival_locations.h"

namespace backbeat {

namespace {

constexpr std::string_view betweenActs = " • ";
constexpr int64_t lastHeadlinerPosition = 4;
constexpr int64_t weeksOfYear = 52;
constexpr int64_t firstLocalFestival = 1000;
constexpr double feePerGuest = 3;
constexpr double headlinerShare = 0.4;

struct Positions {
  int64_t best;
  int64_t worst;
};
constexpr Band<int64_t, Positions> positionsBySkill[] = {{10, {12, 16}}, {20, {11, 15}}, {30, {10, 14}},
                                                         {40, {9, 13}},  {50, {8, 12}},  {60, {7, 11}},
                                                         {70, {6, 10}},  {80, {4, 8}},   {90, {1, 6}}};
constexpr Positions positionsOfStars = {1, 4};

/// Nobody stands below the sixteenth place; a left-over, kept.
constexpr Band<int64_t, double> sharesByPosition[] = {{3, 0.1667}, {7, 0.0625}, {11, 0.0325}, {16, 0.0125}};
constexpr double shareBelow = 0.1667;

/// Takes a festival of the world that the artist could fill, or makes one nearby; its chance is what it returns.
double drawFestival(Game& game, FestivalInvitation& invitation) {
  const auto tooLarge =
      std::find_if(festivalLocations.begin(), festivalLocations.end(),
                   [&](const FestivalLocation& festival) { return festival.audience > game.state.totalFans; });
  const int64_t candidates = tooLarge - festivalLocations.begin();  // they stand in order of the audience
  if (candidates > 0) {
    const FestivalLocation& drawn = festivalLocations[static_cast<size_t>(game.random.integer(0, candidates - 1))];
    invitation.saveFestivalId = drawn.id;
    invitation.saveName = drawn.name;
    invitation.location = drawn.location;
    invitation.genres = drawn.genres;
    invitation.saveAudience = drawn.audience;
    return drawn.chance;
  }
  invitation.saveName = game.random.element(localFestivalNames);
  invitation.location = game.random.element(localFestivalPlaces);
  invitation.saveAudience = 50 * game.random.integer(1, 100);
  return game.random.uniformDouble(10, 25);
}

/// Somebody nobody has heard of.
std::string drawActName(Random& random) {
  const bool isGivenName = random.coin() == 0;
  const std::string_view first = isGivenName ? random.element(firstNameList) : random.element(rapperFirst);
  const std::string_view last = isGivenName ? random.element(lastNameList) : random.element(rapperLast);
  return trimmed(std::string(first) + " " + std::string(last));
}

bool onSetList(const Game& game, int64_t songId) {
  const std::vector<int64_t>& setList = game.launch.festivalSetList;
  return std::find(setList.begin(), setList.end(), songId) != setList.end();
}

}  // namespace

FestivalInvitation drawFestivalInvitation(Game& game) {
  const GameState& state = game.state;
  game.launch.festivalSetList.clear();
  FestivalInvitation invitation;
  const Positions positions = bandFor(positionsBySkill, overallSkillRating(state), positionsOfStars);
  invitation.position = game.random.integer(positions.best, positions.worst);
  const double chance = drawFestival(game, invitation);
  while (invitation.acts.size() < actsOfBill - 1) invitation.acts.push_back(drawActName(game.random));
  invitation.saveCanHeadline =
      invitation.position <= lastHeadlinerPosition && game.random.uniformDouble(0, 100) >= chance;
  invitation.acts.insert(invitation.acts.begin() + (invitation.place() - 1), state.myArtistsName);
  invitation.saveHeadliner = invitation.acts.front();
  invitation.saveLineup = lineupOf(invitation.acts);
  const double share =
      invitation.saveCanHeadline ? headlinerShare : bandFor(sharesByPosition, invitation.position, shareBelow);
  invitation.savePayment = static_cast<double>(invitation.saveAudience) * feePerGuest * share;
  const int64_t weeks = game.random.integer(4, 10);
  invitation.festivalWeekForTracking = state.weekNumberForTracking + weeks;
  invitation.festivalWeekNumber = state.weekNumber + weeks;
  invitation.festivalYear = state.yearNumber;
  if (invitation.festivalWeekNumber > weeksOfYear) {
    invitation.festivalWeekNumber -= weeksOfYear;
    invitation.festivalYear += 1;
  }
  return invitation;
}

std::string lineupOf(const std::vector<std::string>& acts) {
  std::string lineup;
  for (const std::string& act : acts) lineup += (lineup.empty() ? "" : std::string(betweenActs)) + act;
  return lineup;
}

std::vector<std::string> actsOf(const std::string& lineupString) {
  std::vector<std::string> acts;
  for (size_t from = 0; from < lineupString.size();) {
    const size_t end = std::min(lineupString.find(betweenActs, from), lineupString.size());
    acts.push_back(lineupString.substr(from, end - from));
    from = end + betweenActs.size();
  }
  return acts;
}

Outcome acceptFestival(Game& game, const FestivalInvitation& invitation) {
  GameState& state = game.state;
  if (game.launch.festivalSetList.empty()) {
    return refuse<"🎼 Set List 🎼">("\nChoose your set list for your performance before accepting the offer.");
  }
  state.festivalId += 1;
  Festival booked;
  booked.id = state.festivalId;
  booked.festivalId =
      invitation.saveFestivalId >= 0 ? invitation.saveFestivalId : firstLocalFestival + state.festivalId;
  booked.festivalName = invitation.saveName;
  booked.isHeadliner = invitation.saveCanHeadline ? 1 : 0;
  booked.audience = invitation.saveAudience;
  booked.headliner = invitation.saveHeadliner;
  booked.lineupString = invitation.saveLineup;
  booked.setListId = game.launch.festivalSetList;
  booked.payment = invitation.savePayment;
  booked.weekNumber = invitation.festivalWeekNumber;
  booked.yearNumber = invitation.festivalYear;
  booked.weekNumberForTracking = invitation.festivalWeekForTracking;
  state.saveAllFestivalList.append(std::move(booked));
  game.save(&GameState::saveAllFestivalList, &GameState::festivalId);
  game.launch.festivalSetList.clear();
  stateChanged(game);
  return successAndClose();
}

Outcome toggleSetListSong(Game& game, int64_t songId) {
  std::vector<int64_t>& setList = game.launch.festivalSetList;
  if (onSetList(game, songId)) {
    std::erase(setList, songId);
    return success();
  }
  const RecordList<Song>& songs = game.state.saveAllSongList;
  const size_t found = songs.find([&](const Song& song) { return song.songId == songId && song.isReleased; });
  if (found == songs.size()) return {};
  if (setList.size() >= mostSongsOfSetList) {
    return refuse<"⚡️ Song Limit Reached ⚡️">("\nYou can only select up to 15 songs.");
  }
  setList.push_back(songId);
  return success();
}

double songSelectionAverage(const GameState& state, const std::vector<int64_t>& setList) {
  double sum = 0;
  int64_t count = 0;
  for (const Song& song : state.saveAllSongList) {
    if (std::find(setList.begin(), setList.end(), song.songId) == setList.end()) continue;
    sum += song.productionRating;
    ++count;
  }
  return count > 0 ? sum / static_cast<double>(count) : 0;
}

}  // namespace backbeat
