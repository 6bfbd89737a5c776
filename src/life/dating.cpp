#include "life/dating.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "life/dating_pools.h"
#include "life/partner.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

constexpr size_t interestsEach = 3;
constexpr int interestDraws = 16;
constexpr int64_t womenPictures = 274;
constexpr int64_t menPictures = 71;

/// Nearly always three; a shorter list is as good.
std::vector<std::string> drawInterests(Random& random) {
  std::vector<std::string> interests;
  for (int draw = 0; draw < interestDraws && interests.size() < interestsEach; ++draw) {
    const std::string interest(random.element(matchInterests));
    if (std::find(interests.begin(), interests.end(), interest) == interests.end()) interests.push_back(interest);
  }
  return interests;
}

void grantForLooks(Game& game, const Matches& candidate) {
  const auto likes = [&](std::string_view interest) {
    return std::find(candidate.interests.begin(), candidate.interests.end(), interest) != candidate.interests.end();
  };
  if (likes("Beach") && likes("Muscles") && likes("Surfing")) grantAchievement(game, achievement::beachBody);
  const bool isInfluencer = candidate.occupation.find("Influencer") != std::string::npos;
  if (isInfluencer && likes("Foodie") && likes("Vegan")) grantAchievement(game, achievement::veganInfluencer);
}

/// Who seeks neither women nor men, which no screen offers, meets either, without a picture.
void drawIdentity(Random& random, int64_t preference, Matches& candidate) {
  const bool isOffered = preference == seekingWoman || preference == seekingMan;
  const auto draw = [&](const char* picture, int64_t pictures, const auto& taglines, const auto& names) {
    if (isOffered) candidate.matchImage = picture + std::to_string(random.integer(1, pictures)) + ".png";
    candidate.matchTagline = random.element(taglines);
    candidate.name = random.element(names);
  };
  if (isOffered ? preference == seekingWoman : random.coin() == 1) {
    draw("woman", womenPictures, femaleTagLines, femaleNames);
  } else {
    draw("man", menPictures, maleTaglines, maleNames);
  }
}

/// A roll of 201; who is liked by chance and by charm opens the screen of the match.
bool tryMatch(Game& game) {
  Dating& app = game.launch.dating;
  const int64_t draw = game.random.integer(0, 200);
  if (draw >= truncate(app.candidate.chemistry) + game.state.charisma) return false;
  app.pendingMatch = app.candidate;
  return true;
}

Outcome tired(Swipe way) {
  const bool isSwipe = way == Swipe::left || way == Swipe::right;
  return noEnergy(isSwipe ? "\nYou don't have the energy to keep swiping endlessly"
                          : "\nYou don't have the energy to keep looking at potential lovers.");
}

/// The line with the artist's name for its star.
std::string addressed(std::string line, const std::string& name) {
  const size_t star = line.find('*');
  return star == std::string::npos ? line : line.replace(star, 1, name);
}

}  // namespace

int64_t candidateEnergy(double chemistry, int64_t maintenance) {
  const int64_t base = std::max<int64_t>(truncate(chemistry / 5), 1);
  return std::max<int64_t>(base + temperOf(maintenance).energy, 0);
}

void drawMatchCandidate(Game& game) {
  Random& random = game.random;
  Dating& app = game.launch.dating;
  Matches candidate;
  candidate.age = random.integer(18, 40);
  app.distance = random.integer(5, 60);
  const int64_t charisma = game.state.charisma;
  candidate.chemistry = static_cast<double>(charisma <= 0 ? 5 : random.integer(5, 5 + charisma));
  const Occupation& work = random.element(occupations);
  candidate.occupation = work.title;
  candidate.weeklyEarnings = work.weeklyEarnings * random.uniformDouble(0.9, 1.1);
  candidate.beauty = random.integer(5, 100);
  candidate.intelligence = random.integer(5, 100);
  candidate.personality = random.integer(5, 100);
  candidate.maintenance = random.integer(5, 100);
  candidate.energyBonus = candidateEnergy(candidate.chemistry, candidate.maintenance);
  candidate.interests = drawInterests(random);
  grantForLooks(game, candidate);
  drawIdentity(random, app.seekingPreference, candidate);
  app.candidate = std::move(candidate);
}

Outcome swipe(Game& game, Swipe way) {
  if (!hasEnergy(game.state, swipeCost)) return tired(way);
  Dating& app = game.launch.dating;
  const bool likes = way == Swipe::right || way == Swipe::heart || way == Swipe::star;
  // A heart after a star still counts as a star: intended.
  if (way == Swipe::right) app.pendingSuperLike = 0;
  pay(game, swipeCost);
  const bool isMatch = likes && tryMatch(game);
  drawMatchCandidate(game);
  if (way == Swipe::star) app.pendingSuperLike = 1;
  stateChanged(game);
  return isMatch ? goTo("goToRelationshipMatch") : Outcome{};
}

Outcome createMatchRecord(Game& game) {
  GameState& state = game.state;
  Random& random = game.random;
  if (game.launch.dating.pendingMatch.name.empty()) return {};
  Matches match = game.launch.dating.pendingMatch;
  match.matchPickupLine = addressed(std::string(random.element(pickupLines)), state.myArtistsName);
  match.interested = random.integer(0, 1);
  match.pickupLineResponse = match.interested == 0 ? random.element(acceptanceLines) : random.element(lineRejections);
  match.matchId = ++state.matchId;
  match.timeToPropose = random.integer(52, 156);
  match.timeToBirth = -1;
  match.weekMatched = state.weekNumberForTracking;
  match.weekEndedDating = -1;
  match.relationshipStatus = (match.chemistry + 50) * 0.5;
  match.superLike = game.launch.dating.pendingSuperLike;
  const std::string line = match.matchPickupLine;
  state.saveAllMatchesList.append(std::move(match));
  game.save(&GameState::matchId, &GameState::saveAllMatchesList);
  keepSwiping(game);
  stateChanged(game);
  Outcome outcome = news<"♥️ Hey, You ♥️">(
      "\n" + line + "\n\nTake the next step by tapping the message bubble on the main FXY screen.");
  outcome += closeScreen();
  return outcome;
}

void keepSwiping(Game& game) { game.launch.dating.pendingMatch = {}; }

}  // namespace backbeat
