// A verse for somebody else's track: who asks, on what terms, and what becomes of it.
#pragma once

#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// What another artist offers for one verse. Never saved: it lasts as long as the visit.
struct VerseOffer {
  int64_t artistId = 0;         ///< row of the guest table, or the signed artist's id
  bool isSignedArtist = false;  ///< of the player's own label: no fee, and a royalty that cannot be raised
  std::string artistName = {};
  double rating = 0;    ///< of the artist who asks
  double virality = 0;  ///< of the artist who asks
  std::string title = {};
  double trackRating = 0;  ///< the rating that the song comes out with
  int64_t fee = 0;         ///< dollars, paid at once
  int64_t royalty = 0;     ///< percent of what the song streams
};

inline constexpr Price acceptVerseCost = {.energy = 10};
inline constexpr Price negotiateVerseCost = {.energy = 25};

/// How many points more of the royalty can be asked for.
inline constexpr int64_t fewestPointsAsked = 1;
inline constexpr int64_t mostPointsAsked = 20;

/// Draws who asks and what is offered. A coin decides between the label's artists and the stars wherever the label has
/// artists under contract; a star is about as good as the player, or any where nobody is.
VerseOffer drawVerseOffer(Game& game);

/// The percentage, 0 to 95, at which so many points more are granted.
int64_t negotiationChance(const GameState& state, const VerseOffer& offer, int64_t pointsAsked);

/// Refused for the label's own artists, whose deal stands; done for all others.
Outcome askForMoreRoyalty(const VerseOffer& offer);

/// Books the offer as it stands. Refused without the energy.
Outcome acceptVerse(Game& game, const VerseOffer& offer);

/// Asks for more points. Refused for the label's own artists and without the energy; otherwise the energy is spent, and
/// the verse is booked at the terms asked for, or is lost.
Outcome negotiateVerse(Game& game, const VerseOffer& offer, int64_t pointsAsked);

}  // namespace backbeat
