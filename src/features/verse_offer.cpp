#include "features/verse_offer.h"

#include <algorithm>
#include <vector>

#include "career/skill.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "music/guests.h"
#include "music/title_pools.h"

namespace backbeat {

namespace {

// A star asks whom it takes for its equal.
constexpr double farBelow = 30;
constexpr double farAbove = 20;

constexpr double worseThanItsArtist = 10;
constexpr double betterThanItsArtist = 5;
constexpr double leastTrackRating = 1;

// Parts of what a verse by the star itself costs.
constexpr double leastFee = 0.05;
constexpr double greatestFee = 0.15;
constexpr int64_t leastRoyalty = 5;
constexpr int64_t greatestRoyalty = 10;
constexpr double ratingForAPoint = 10;  // a better artist shares more

/// By how much the player is the better of the two.
constexpr Band<int64_t, int64_t> chances[] = {{-21, 5}, {-11, 15}, {-1, 30}, {10, 50}, {20, 65}, {30, 80}};
constexpr int64_t chanceBeyond = 90;
constexpr int64_t chanceLostForAPoint = 3;
constexpr int64_t greatestChance = 95;
constexpr int64_t negotiationRollTop = 100;

constexpr int64_t leastMarketing = 10;
constexpr double partOfVirality = 0.75;

/// Somebody who may ask, with no track yet.
struct Asker {
  VerseOffer offer;
  double cost = 0;  ///< dollars of a verse by the star itself
};

Asker askerFrom(const FeaturedArtist& star) {
  return {{.artistId = star.id, .artistName = star.name, .rating = star.rating, .virality = star.virality},
          static_cast<double>(star.cost)};
}

Asker askerFrom(const SignedArtist& artist) {
  return {{.artistId = artist.artistId,
           .isSignedArtist = true,
           .artistName = artist.name,
           .rating = static_cast<double>(artistRating(artist)),
           .virality = static_cast<double>(artist.virality),
           .royalty = royaltyOf(artist)}};
}

/// Everybody whom the label has under contract.
std::vector<Asker> artistsOfTheLabel(const GameState& state) {
  std::vector<Asker> askers;
  for (const SignedArtist& artist : state.saveAllSignedArtistList) {
    if (artist.underContract) askers.push_back(askerFrom(artist));
  }
  return askers;
}

std::vector<Asker> stars(const GameState& state) {
  const double skill = static_cast<double>(overallSkillRating(state));
  std::vector<Asker> near;
  std::vector<Asker> all;
  for (const FeaturedArtist& star : guestTable(state)) {
    all.push_back(askerFrom(star));
    if (star.rating >= skill - farBelow && star.rating <= skill + farAbove) near.push_back(all.back());
  }
  return near.empty() ? all : near;
}

Asker drawAsker(Game& game) {
  const std::vector<Asker> ofTheLabel = artistsOfTheLabel(game.state);
  if (!ofTheLabel.empty() && game.random.coin() == 1) return game.random.element(ofTheLabel);
  return game.random.element(stars(game.state));
}

void book(Game& game, const VerseOffer& offer, int64_t royalty) {
  GameState& state = game.state;
  state.featuredOnSongId += 1;
  FeaturedOn verse;
  verse.songId = state.featuredOnSongId;
  verse.artistId = offer.artistId;
  verse.artistName = offer.artistName;
  verse.title = offer.title;
  verse.album = "Single";
  verse.isReleased = true;
  verse.releaseWeek = state.weekNumberForTracking;
  verse.releaseYear = state.yearNumber;
  verse.productionRating = offer.trackRating;
  verse.features = {"", state.myArtistsName};
  verse.marketingScore =
      static_cast<double>(game.random.integer(leastMarketing, std::max(leastMarketing, truncate(offer.rating))));
  const double virality = (static_cast<double>(state.virality) + offer.virality) / 2;
  verse.viralityScore = game.random.uniformDouble(0, virality) * partOfVirality;
  verse.flatFee = static_cast<double>(offer.fee);
  verse.streamPayRate = state.isLabelLaunched >= 1 ? state.labelStreamingRate : state.streamingPayRate;
  verse.percentageOfEarnings = static_cast<double>(royalty) / 100;
  verse.isSignedArtist = offer.isSignedArtist ? 1 : 0;
  earn(game, {.dollars = verse.flatFee});
  state.saveAllFeaturedOnList.append(std::move(verse));
  game.save(&GameState::featuredOnSongId, &GameState::saveAllFeaturedOnList);
}

Outcome tooTired() {
  return noEnergy<"⚡️Not Enough Energy⚡️">("\nYou do not have enough energy to feature on this song.");
}

}  // namespace

VerseOffer drawVerseOffer(Game& game) {
  auto [offer, cost] = drawAsker(game);
  offer.title = game.random.element(firstTitleWords);
  offer.title += " ";
  offer.title += game.random.element(secondTitleWords);
  const double rating =
      game.random.uniformDouble(offer.rating - worseThanItsArtist, offer.rating + betterThanItsArtist);
  offer.trackRating = std::max(roundTo(rating, 2), leastTrackRating);
  if (offer.isSignedArtist) return offer;
  offer.fee = truncate(cost * game.random.uniformDouble(leastFee, greatestFee));
  offer.royalty = game.random.integer(leastRoyalty, greatestRoyalty) + truncate(offer.rating / ratingForAPoint);
  return offer;
}

int64_t negotiationChance(const GameState& state, const VerseOffer& offer, int64_t pointsAsked) {
  const int64_t chance = bandFor(chances, overallSkillRating(state) - truncate(offer.rating), chanceBeyond);
  return std::clamp(chance - chanceLostForAPoint * (pointsAsked - 1), int64_t{0}, greatestChance);
}

Outcome askForMoreRoyalty(const VerseOffer& offer) {
  if (!offer.isSignedArtist) return {};
  return refuse<"❌ Royalty Exception ❌">(offer.artistName + " is currently signed to your label under a " +
                                         std::to_string(offer.royalty) +
                                         "% royalty deal. You can't ask for any more royalties for this artist.");
}

Outcome acceptVerse(Game& game, const VerseOffer& offer) {
  if (!hasEnergy(game.state, acceptVerseCost)) return tooTired();
  pay(game, acceptVerseCost);
  book(game, offer, offer.royalty);
  stateChanged(game);
  return success();
}

Outcome negotiateVerse(Game& game, const VerseOffer& offer, int64_t pointsAsked) {
  if (Outcome refusal = askForMoreRoyalty(offer); !refusal.done()) return refusal;
  if (!hasEnergy(game.state, negotiateVerseCost)) return tooTired();
  const int64_t chance = negotiationChance(game.state, offer, pointsAsked);
  pay(game, negotiateVerseCost);
  Outcome outcome;
  if (game.random.integer(0, negotiationRollTop) < chance) {
    const int64_t royalty = offer.royalty + pointsAsked;
    book(game, offer, royalty);
    outcome = news<"🎤 They Said Yes 🎤">("\n" + offer.artistName + " gives you " + std::to_string(royalty) +
                                        "% of what " + offer.title + " streams.");
  } else {
    outcome = news<"❌ Not This Time ❌">("\nAfter consideration, " + offer.artistName + " went with somebody else.",
                                        Feedback::warning);
  }
  stateChanged(game);
  return outcome;
}

}  // namespace backbeat
