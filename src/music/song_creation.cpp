#include "music/song_creation.h"

#include <algorithm>
#include <array>

#include "career/label_contract.h"
#include "career/skill.h"
#include "core/calendar.h"
#include "core/case_folding.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "core/text.h"
#include "music/guests.h"

namespace backbeat {

namespace {

/// A title that holds one of these, be it inside another word ("gangster"), makes the song explicit.
constexpr std::array<std::string_view, 42> explicitKeywords = {
    "fuck",    "sex",    "bitch",   "pussy", "shit",      "cunt",   "drug",   "ass",   "booty", "dick", "cock",
    "shag",    "twat",   "condom",  "naked", "nude",      "butt",   "vagina", "penis", "oral",  "porn", "segg",
    "cocaine", "crack",  "anal",    "milf",  "nipple",    "damn",   "gang",   "bang",  "cum",   "tits", "titty",
    "boobs",   "fetish", "pegging", "orgy",  "threesome", "squirt", "orgasm", "69",    "wap",
};

bool holdsExplicitKeyword(const std::string& title) {
  const std::string folded = foldCase(title);
  return std::any_of(explicitKeywords.begin(), explicitKeywords.end(),
                     [&](std::string_view word) { return folded.find(word) != std::string::npos; });
}

/// Half of each guest's virality and rating, on average.
struct GuestShare {
  double virality = 0;
  double rating = 0;
  std::vector<std::string> names;
};

GuestShare shareOfGuests(const GameState& state, const std::vector<int64_t>& picked) {
  GuestShare share;
  for (const int64_t id : picked) {
    Guest guest;
    if (!guestFor(state, id, guest)) continue;
    share.virality += guest.virality * 0.5;
    share.rating += guest.rating * 0.5;
    share.names.push_back(guest.name);
  }
  if (share.names.empty()) return share;
  share.virality /= static_cast<double>(share.names.size());
  share.rating /= static_cast<double>(share.names.size());
  return share;
}

/// Position of the last album in production with that title. Without one the song counts on the first album of the list
/// and is a single.
size_t albumFor(const GameState& state, Song& song, const std::string& title) {
  const RecordList<Album>& albums = state.saveAllAlbumList;
  for (size_t i = albums.size(); i-- > 0;) {
    if (albums[i].isReleased || albums[i].title != title) continue;
    song.album = albums[i].title;
    song.albumId = albums[i].albumId;
    return i;
  }
  song.album = "Single";
  song.albumId = 0;
  return 0;
}

void applyLabelTerms(const GameState& state, Song& song) {
  if (state.underContract >= 1) {
    const size_t running = runningContract(state);
    if (running != state.saveAllContractLabelList.size()) {
      song.percentageOfEarnings = 1 - state.saveAllContractLabelList[running].labelPercentageRate;
    }
    // The contract's marketing replaces the song's own; the artist's own label adds to it. Intended.
    song.marketingScore = static_cast<double>(state.contractMarketingBoost);
  }
  if (state.isLabelLaunched >= 1) {
    song.streamPayRate = state.labelStreamingRate;
    song.marketingScore += static_cast<double>(state.labelMarketingBoost);
  }
}

void countOnAlbum(Album& album, double productionRating) {
  const double count = static_cast<double>(album.songCount);
  album.productionRating = (album.productionRating * count + productionRating) / (count + 1);
  album.songCount += 1;
  album.marketingScore += 1.0;
}

Outcome refuseTitle() {
  return refuse<"🔥 Enter a Title 🔥">("\nEvery song needs a unique title. It might be your next big hit.");
}

}  // namespace

Price costToProduceSong(const GameState& state, const SongDraft& draft) {
  Price cost = {.energy = songEnergy, .dollars = static_cast<double>(draft.productionCost)};
  for (const int64_t id : draft.guests) {
    Guest guest;
    if (guestFor(state, id, guest)) cost.dollars += guest.cost.dollars;
  }
  return cost;
}

void ensureSingleAlbum(Game& game) {
  RecordList<Album>& albums = game.state.saveAllAlbumList;
  if (std::any_of(albums.begin(), albums.end(), [](const Album& album) { return !album.isReleased; })) return;
  Album single;
  single.title = "Single";
  single.chartRanking = 1000;
  single.percentageOfEarnings = 1.0;
  albums.append(std::move(single));
  game.save(&GameState::saveAllAlbumList);
}

double productionRoll(Random& random, const SongDraft& draft, int64_t charisma, double viralityRoll) {
  const double m = static_cast<double>(draft.finalMusicalityRating);
  const double w = static_cast<double>(draft.finalSongWritingRating) * 0.75;
  const double c = static_cast<double>(charisma) * 0.75;
  const double s = static_cast<double>(draft.finalStudioRating);
  return qualityRoll(random, {m, w, c, s}, viralityRoll);
}

bool songTitleTaken(const GameState& state, const std::string& title) {
  const std::string folded = foldCase(trimmed(title));
  return std::any_of(state.saveAllSongList.begin(), state.saveAllSongList.end(),
                     [&](const Song& song) { return foldCase(song.title) == folded; });
}

Outcome createSong(Game& game, const SongDraft& draft) {
  GameState& state = game.state;
  const Price cost = costToProduceSong(state, draft);
  if (!hasEnergy(state, cost)) return bounce();
  if (!hasCash(state, cost)) {
    return noCash<"💵 Not Enough 💵">("\nYou don't have the funds required to produce this song.");
  }
  Song song;
  song.title = trimmed(draft.title);
  if (song.title.empty() || songTitleTaken(state, song.title)) return refuseTitle();

  song.features = {""};
  song.marketingScore = 10.0;
  song.percentageOfEarnings = 1.0;
  int64_t explicitBonus = 0;
  song.isExplicit = draft.isExplicit ? 1 : 0;
  if (holdsExplicitKeyword(song.title)) {
    song.isExplicit = 1;
    explicitBonus = game.random.integer(0, 3);
  }
  const size_t album = albumFor(state, song, draft.album);
  // A skilled artist who goes alone gets a gift; it lands in the virality.
  const GuestShare guests = shareOfGuests(state, draft.guests);
  if (draft.guests.empty() && talent(state) > 1) explicitBonus += game.random.integer(0, talent(state)) / 2;
  state.songId += 1;
  song.songId = state.songId;
  song.streamPayRate = state.streamingPayRate;
  const double viralityRoll = drawViralityRoll(game.random, state.virality + state.fashionViralityBonus);
  song.viralityScore = guests.virality + viralityRoll + static_cast<double>(state.contractViralityBoost) +
                       static_cast<double>(explicitBonus) + static_cast<double>(state.labelViralityBoost);
  song.productionRating = guests.rating + productionRoll(game.random, draft, state.charisma, viralityRoll);
  applyLabelTerms(state, song);
  for (const std::string& name : guests.names) song.features.push_back(trimmed(name));
  if (album < state.saveAllAlbumList.size()) {
    state.saveAllAlbumList.update(album, [&](Album& changed) { countOnAlbum(changed, song.productionRating); });
  }
  state.songGenres.append({song.songId, draft.genre});
  state.saveGenreForNextTime = draft.genre;
  state.saveAllSongList.append(std::move(song));
  state.songId += 1;
  game.save(&GameState::saveAllSongList, &GameState::saveAllAlbumList, &GameState::songId,
            &GameState::saveGenreForNextTime, &GameState::songGenres);
  pay(game, cost);
  game.launch.selectedFeaturedArtists.clear();
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
