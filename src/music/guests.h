// The stars who can be hired for a verse, and the faces who can be hired for a video. Their names are the player's to
// change; cost, rating and virality stay with the row.
#pragma once

#include <vector>

#include "core/game.h"
#include "core/price.h"

namespace backbeat {

/// Rows of the guest table, in order of cost, under the names the player gave them. Ids are below 50; a picked id of 50
/// or more is a signed artist, 50 above its `artistId`.
std::vector<FeaturedArtist> guestTable(const GameState& state);
std::vector<CelebrityCameo> cameoTable(const GameState& state);

inline constexpr int64_t firstSignedArtistPick = 50;

/// Gives row `id` another name and keeps it, also through a restart. An unknown id or an empty name changes nothing.
void renameGuest(Game& game, int64_t id, const std::string& name);
void renameCameo(Game& game, int64_t id, const std::string& name);

/// What a star asks for a verse, after the contract's discount.
Price guestCost(const GameState& state, const FeaturedArtist& star);

/// One guest as the song sees it.
struct Guest {
  std::string name;
  double virality = 0;
  double rating = 0;
  Price cost;  ///< paid with the song
};

/// The guest behind a picked id; false when there is none. An artist under contract with the label is free, and rates
/// by its traits with the weakest counted twice, that one up to 100 (110 for the player: intended).
bool guestFor(const GameState& state, int64_t pickedId, Guest& guest);

/// Takes artists who have left the label off the song in preparation.
void letGoOfFormerArtists(Game& game);

}  // namespace backbeat
