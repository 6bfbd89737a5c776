#include "label/artist_week.h"

#include <algorithm>
#include <array>

#include "core/bands.h"
#include "core/numbers.h"
#include "label/departments.h"
#include "label/roster.h"

namespace backbeat {

namespace {

/// Up to how many new listeners a week, before talent, by those that there are.
constexpr Band<int64_t, double> mostNewListeners[] = {
    {100, 5},
    {1'000, 10},
    {10'001, 50},
    {100'000, 100},
    {1'000'000, 1'000},
    {10'000'000, 10'000},
    {100'000'000, 100'000},
    {1'000'000'000, 200'000},
    {6'000'000'000, 500'000},
};
/// Who has most of mankind listening gains hardly anybody: intended.
constexpr double beyondMankind = 14;
constexpr double talentBase = 3;

constexpr double greatestHappiness = 125;
constexpr double lossWithoutContract = 3.0;
constexpr int64_t demandingRating = 70;  ///< who signed with it takes neglect worse
constexpr double contentScouts = 75;
constexpr double unhappyScouts = 30;

constexpr double risingAbove = 80;
constexpr double fallingBelow = 50;
constexpr int64_t driftRollTop = 200;
constexpr int64_t greatestTrait = 110;

constexpr std::array traits = {&SignedArtist::charisma, &SignedArtist::rhythm, &SignedArtist::songwriting,
                               &SignedArtist::virality, &SignedArtist::vocals, &SignedArtist::talent};

/// How the artists' own department is this week.
struct Scouts {
  bool overloaded = false;
  double morale = 0;  ///< mean, of nobody 0
};

Scouts scoutsOf(const GameState& state) {
  int64_t staff = 0;
  double morale = 0;
  for (const Employee& employee : state.saveAllEmployeeList) {
    if (employee.employeeDepartmentCode != department::artistsAndRepertoire) continue;
    staff += 1;
    morale += employee.employeeMorale;
  }
  return {.overloaded = staff * artistsForEach < activeArtists(state),
          .morale = staff == 0 ? 0 : morale / static_cast<double>(staff)};
}

double moodSwing(Random& random, const Scouts& scouts, bool demanding) {
  if (scouts.overloaded) return demanding ? -3.0 : -2.0;
  if (scouts.morale >= contentScouts) return random.uniformDouble(0.1, 0.5);
  if (scouts.morale <= unhappyScouts) return -2.0;
  return demanding ? -random.uniformDouble(0.5, 1.0) : -random.uniformDouble(0.1, 0.5);
}

/// A talented artist improves more readily, and declines less. Both draws are made whatever comes of them.
void driftTrait(Random& random, SignedArtist& artist) {
  const int64_t roll = random.integer(0, driftRollTop);
  int64_t& trait = artist.*random.element(traits);
  if (artist.happiness > risingAbove && roll <= artist.talent) {
    trait = std::min(trait + random.integer(0, 1), greatestTrait);
  } else if (artist.happiness < fallingBelow && roll >= artist.talent) {
    trait = std::max<int64_t>(trait - random.integer(0, 2), 0);
  }
}

void live(const GameState& state, Random& random, const Scouts& scouts, SignedArtist& artist) {
  if (contractIsUp(state, artist)) {
    artist.happiness -= lossWithoutContract;
  } else {
    artist.monthlyListeners =
        add(artist.monthlyListeners, listenerGrowth(random, artist.monthlyListeners, artist.talent));
    if (artist.weeksToCompleteAlbum > 0) artist.weeksToCompleteAlbum -= 1;
    artist.happiness += moodSwing(random, scouts, artist.originalRating >= demandingRating);
    artist.happiness += state.labelArtistHappinessBonus;
  }
  artist.happiness = std::clamp(artist.happiness, 0.0, greatestHappiness);
  driftTrait(random, artist);
}

}  // namespace

int64_t listenerGrowth(Random& random, int64_t listeners, int64_t talent) {
  const double most = listeners < 0 ? beyondMankind : bandFor(mostNewListeners, listeners, beyondMankind);
  // Talent lies near a hundred; only a file can hold more.
  const double gift = power(talentBase, std::min(static_cast<double>(talent) / 100, 10.0));
  return truncate(random.uniformDouble(1, most) * gift);
}

void updateSignedArtistsWeekly(Game& game) {
  GameState& state = game.state;
  RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  if (artists.empty()) return;
  const Scouts scouts = scoutsOf(state);
  for (size_t i = 0; i < artists.size(); ++i) {
    if (!artists[i].underContract) continue;
    artists.update(i, [&](SignedArtist& artist) { live(state, game.random, scouts, artist); });
  }
  game.save(&GameState::saveAllSignedArtistList);
}

}  // namespace backbeat
