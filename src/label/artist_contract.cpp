#include "label/artist_contract.h"

#include <algorithm>
#include "career/skill.h"

#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "label/roster.h"
#include "music/guests.h"

namespace backbeat {

namespace {

constexpr int64_t weeksInYear = 52;
constexpr int64_t mostRenewalYears = 5;

}  // namespace

Price renewalCost(const SignedArtist& artist) { return {.dollars = static_cast<double>(artist.signingBonus)}; }

int64_t renewalYears(const SignedArtist& artist) {
  return std::min((artist.weekEnd - artist.weekSigned) / weeksInYear, mostRenewalYears);
}

Outcome askToRenew(const GameState& state, int64_t artistId, Action confirmed) {
  const size_t position = artistPosition(state, artistId);
  if (position == state.saveAllSignedArtistList.size()) return {};
  const SignedArtist& artist = state.saveAllSignedArtistList[position];
  if (!contractIsUp(state, artist)) return {};
  return ask<"✍️ Renew Contract? ✍️">(
      "\n" + artist.name +
          "'s contract is up for renewal. Would you like to renew at the original contract terms?\n\nSIGNING BONUS\n" +
          currency(renewalCost(artist).dollars) + "\n\nCONTRACT\n+" + std::to_string(renewalYears(artist)) +
          " Years\n\nROYALTY\n\n" + std::to_string(royaltyOf(artist)) + "%",
      "No", {"Offer Renewal", std::move(confirmed), AlertButton::Style::normal});
}

Outcome renewContract(Game& game, int64_t artistId) {
  GameState& state = game.state;
  RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  const size_t position = artistPosition(state, artistId);
  if (position == artists.size() || !contractIsUp(state, artists[position])) return {};
  const Price bonus = renewalCost(artists[position]);
  if (!hasCash(state, bonus)) {
    return noCash("\nYou do not have enough cash to cover the sign on bonus for this artist.");
  }
  pay(game, bonus);
  artists.update(position, [&](SignedArtist& artist) {
    artist.weekEnd = state.weekNumberForTracking + renewalYears(artist) * weeksInYear;
    artist.totalLifetimeCost += bonus.dollars;
  });
  state.totalRecordLabelCost += bonus.dollars;
  game.save(&GameState::saveAllSignedArtistList, &GameState::totalRecordLabelCost);
  stateChanged(game);
  return success();
}

Outcome askToDrop(const GameState& state, int64_t artistId, Action confirmed) {
  const size_t position = artistPosition(state, artistId);
  if (position == state.saveAllSignedArtistList.size()) return {};
  const SignedArtist& artist = state.saveAllSignedArtistList[position];
  if (!artist.underContract) return {};
  return ask<"✂️ Drop Artist? ✂️">(
      "\nAre you sure you want to drop " + artist.name +
          " from your label? They will not come back. What they have released keeps "
          "earning.",
      "No", {"Yes, Drop", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome dropArtist(Game& game, int64_t artistId) {
  RecordList<SignedArtist>& artists = game.state.saveAllSignedArtistList;
  const size_t position = artistPosition(game.state, artistId);
  if (position == artists.size() || !artists[position].underContract) return {};
  artists.update(position, [](SignedArtist& artist) { artist.underContract = false; });
  letGoOfFormerArtists(game);
  game.save(&GameState::saveAllSignedArtistList);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
