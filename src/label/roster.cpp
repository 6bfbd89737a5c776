#include "label/roster.h"

#include "music/genres.h"

namespace backbeat {

size_t artistPosition(const GameState& state, int64_t artistId) {
  const auto found = state.saveAllSignedArtistList.historyOf(artistId);
  return found.empty() ? state.saveAllSignedArtistList.size() : found.front();
}

int64_t weeksLeft(const GameState& state, const SignedArtist& artist) {
  return artist.weekEnd - state.weekNumberForTracking;
}

bool contractIsUp(const GameState& state, const SignedArtist& artist) {
  return artist.underContract && weeksLeft(state, artist) < 1;
}

bool albumWaits(const GameState& state, const SignedArtist& artist) {
  return artist.underContract && !contractIsUp(state, artist) && artist.weeksToCompleteAlbum < 1;
}

DueArtists dueArtists(const GameState& state, bool (*isDue)(const GameState&, const SignedArtist&)) {
  DueArtists due;
  for (const SignedArtist& artist : state.saveAllSignedArtistList) {
    if (!isDue(state, artist)) continue;
    if (!due.first) due.first = &artist;
    ++due.count;
  }
  return due;
}

std::string_view genreOf(int64_t artistId) {
  constexpr auto count = static_cast<int64_t>(genres.size());
  return genres[static_cast<size_t>(((artistId - 1) % count + count) % count)];
}

ScoutedArtist asScouted(const SignedArtist& artist) {
  return {.name = artist.name,
          .songwriting = artist.songwriting,
          .vocals = artist.vocals,
          .rhythm = artist.rhythm,
          .charisma = artist.charisma,
          .virality = artist.virality,
          .talent = artist.talent,
          .monthlyListeners = artist.monthlyListeners};
}

}  // namespace backbeat
