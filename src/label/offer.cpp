#include "label/offer.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "label/departments.h"
#include "label/scouting.h"

namespace backbeat {

namespace {

constexpr double baseChance = 190.0;
constexpr int64_t bonusStep = 100'000;
constexpr int64_t modestBonus = 1'000'000;  ///< below it each step more counts more
constexpr int64_t weeksInYear = 52;

struct TermRange {
  int64_t SigningTerms::*value;
  int64_t least;
  int64_t most;
  int64_t step;
  double chance;  ///< what a step up adds to it
};

constexpr TermRange rangeOf(SigningTerm term) {
  switch (term) {
    case SigningTerm::contractLength: return {&SigningTerms::contractLength, 2, 10, 1, 0.5};
    case SigningTerm::revenueShare: return {&SigningTerms::revenueShare, 51, 95, 1, -3.0};
    case SigningTerm::signingBonus: break;
  }
  return {&SigningTerms::signingBonus, bonusStep, 50'000'000, bonusStep, 0.3};
}

/// What may be a chance; below none it is lost for good: intended.
double possible(double chance) { return chance < 0 ? 0 : chance; }

SignedArtist contractWith(Game& game, const ScoutedArtist& artist, const SigningTerms& terms) {
  const GameState& state = game.state;
  SignedArtist signedArtist;
  signedArtist.name = artist.name;
  signedArtist.artistId = state.signedArtistId;
  signedArtist.charisma = signedArtist.originalCharisma = artist.charisma;
  signedArtist.rhythm = signedArtist.originalRhythm = artist.rhythm;
  signedArtist.songwriting = signedArtist.originalSongwriting = artist.songwriting;
  signedArtist.virality = signedArtist.originalVirality = artist.virality;
  signedArtist.vocals = signedArtist.originalVocals = artist.vocals;
  signedArtist.talent = signedArtist.originalTalent = artist.talent;
  signedArtist.yearSigned = state.yearNumber;
  signedArtist.weekSigned = state.weekNumberForTracking;
  signedArtist.weekEnd = state.weekNumberForTracking + terms.contractLength * weeksInYear;
  signedArtist.labelRevenuePercentage = static_cast<double>(terms.revenueShare) / 100.0;
  signedArtist.signingBonus = terms.signingBonus;
  signedArtist.weeksToCompleteAlbum = game.random.integer(30, 60);
  signedArtist.happiness = 100.0;
  signedArtist.monthlyListeners = signedArtist.originalMonthlyListeners = artist.monthlyListeners;
  signedArtist.originalRating = ratingOf(artist);
  signedArtist.underContract = true;
  signedArtist.totalLifetimeCost = static_cast<double>(terms.signingBonus);
  return signedArtist;
}

Outcome sign(Game& game, const ScoutedArtist& artist, const SigningTerms& terms) {
  GameState& state = game.state;
  const Price bonus = {.dollars = static_cast<double>(terms.signingBonus)};
  state.totalRecordLabelCost += bonus.dollars;
  pay(game, bonus);
  state.signedArtistId += 1;
  state.saveAllSignedArtistList.append(contractWith(game, artist, terms));
  if (artist.createdPosition >= 0) state.saveAllCreatedArtists.erase(static_cast<size_t>(artist.createdPosition));
  game.save(&GameState::totalRecordLabelCost, &GameState::signedArtistId, &GameState::saveAllSignedArtistList,
            &GameState::saveAllCreatedArtists);
  stateChanged(game);
  return successAndClose();
}

}  // namespace

SigningTerms firstTerms(const GameState& state, const ScoutedArtist& artist) {
  const int64_t rating = ratingOf(artist);
  SigningTerms terms;
  terms.chanceToSign =
      possible(baseChance - static_cast<double>(artist.talent + rating) +
               static_cast<double>(departmentRatings(state).overall - rating + state.labelNegotiationBonus));
  return terms;
}

int64_t chanceInPercent(const SigningTerms& terms) { return truncate(terms.chanceToSign * 0.5); }

bool canStep(const SigningTerms& terms, SigningTerm term, int64_t way) {
  const TermRange range = rangeOf(term);
  const int64_t value = terms.*range.value;
  return (way == 1 && value < range.most) || (way == -1 && value > range.least);
}

void stepTerm(SigningTerms& terms, SigningTerm term, int64_t way) {
  if (!canStep(terms, term, way)) return;
  const TermRange range = rangeOf(term);
  const int64_t before = terms.*range.value;
  terms.*range.value += way * range.step;
  double change = range.chance;
  // At a million exactly the two ways look at different ends of the step: intended.
  const int64_t asked = way == 1 ? before : terms.*range.value;
  if (term == SigningTerm::signingBonus && asked < modestBonus) change += 0.5;
  terms.chanceToSign = possible(terms.chanceToSign + static_cast<double>(way) * change);
}

Outcome makeOffer(Game& game, const ScoutedArtist& artist, const SigningTerms& terms) {
  GameState& state = game.state;
  if (!isStillFree(state, artist)) return {};
  if (activeArtists(state) >= state.studioCapacity) {
    return refuse<"🎤 Studio Capacity 🎤">(
        "\nYou do not have enough studio capacity to sign this artist and give them the time needed in studio. Upgrade "
        "your studio to accommodate more artists.");
  }
  if (!hasEnergy(state, offerCost)) return noEnergy("\nYou do not have enough energy to make this offer.");
  pay(game, offerCost);
  const bool accepted = game.random.integer(1, 99) < chanceInPercent(terms);
  if (accepted && state.totalCashAvailable >= static_cast<double>(terms.signingBonus)) return sign(game, artist, terms);
  stateChanged(game);
  if (accepted) {
    return news<"💰 Not Enough Cash 💰">("\nYou do not have enough cash to cover the sign on bonus for this artist.",
                                       Feedback::warning);
  }
  return news<"😡 Rejected 😡">("\n" + artist.name + " was offended at the terms of the deal and rejected your offer.",
                              Feedback::warning);
}

}  // namespace backbeat
