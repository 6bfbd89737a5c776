// What a record label offers the artist, and what signing it changes.
#pragma once

#include <string>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

inline constexpr int64_t fewestFansForOffer = 35'001;

/// Step 14 of the turn. Two draws are always made; below the fame they ask for, or with a label of one's own, nothing
/// changes, so that an offer can then outlive its week. Otherwise an offer comes to a free artist one week in ten, and
/// an offer that was there lapses without a word.
void checkLabelOfferBadge(Game& game);

/// One of the labels that make offers, small to great.
struct RecordLabel {
  const char* recordLabel;
  const char* image;
  const char* marketingPower;
  double revenueLabel;  ///< dollars a year of all its artists
};

/// Which label an artist of that fame interests, 0 to 4. Past ten billion none of the rows holds and the smallest label
/// calls: intended.
int64_t contractLevelFor(int64_t totalFans);

/// The label of that level.
const RecordLabel& recordLabelOf(int64_t contractLevel);

/// Opening the offer draws its terms, once: only while an offer waits and the artist is free. They stay as they are
/// until the offer is signed or lapses, also when the screen is left.
void drawContractOffer(Game& game);

/// The letter that comes with the offer on the table.
std::string offerGreeting(const ContractOffer& offer);

/// What the label takes and gives, in words. It speaks of a cut on merchandise too, which no label ever takes: its
/// lawyers like the sound of it.
std::string offerDeal(const ContractOffer& offer);

/// What the label expects, and what happens otherwise.
std::string offerExpectations(const ContractOffer& offer);

/// The contract as it would stand if the offer were signed now.
ContractLabel contractOf(const GameState& state, const ContractOffer& offer);

/// Puts the terms into force and pays the advance. Only terms that were drawn can be signed, and only by a free artist
/// without a label of their own; anything else changes nothing.
Outcome signContract(Game& game);

}  // namespace backbeat
