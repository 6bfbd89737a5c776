// The Chirp feed: one list for everybody's posts, newest first.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "core/view.h"

namespace backbeat {

inline constexpr Price chirpCost = {.energy = 5};
inline constexpr const char* chirpProfilePicture = "chirpProfilePic.png";

/// Who posts: `Chirp::typeOfAccount`.
namespace account {
inline constexpr int64_t player = 0;
inline constexpr int64_t signedArtist = 1;
inline constexpr int64_t company = 2;
inline constexpr int64_t person = 3;

inline constexpr int64_t firstCompany = 100'000;  ///< `Chirp::artistId` of a company: this and the company's own id
inline constexpr int64_t firstPartner = 200'000;  ///< `Chirp::artistId` of a partner: this and the match's own id
}  // namespace account

/// Once in a save, from 26 listeners on: the first followers, a random 30 to 60 % of the listeners.
void seedFollowers(Game& game);

/// The player's post, for 5 energy. Refused when the text is empty or the energy does not reach. `songId` -1, or the
/// song in production that the post announces: its virality rises by 1, once.
Outcome postChirp(Game& game, const std::string& message, int64_t songId = -1);

/// Whether a post has announced the song.
bool songAnnounced(const GameState& state, int64_t songId);

/// A post that the game writes in the artist's name: free, with counts drawn from `audience` (the followers, as a
/// rule).
void postChirpForArtist(Game& game, const std::string& message, int64_t audience, int64_t albumId = -1);

/// A post by somebody else; its counts are drawn after the message.
void postChirpForPerson(Game& game, int64_t artistId, const std::string& name, const std::string& imageString,
                        const std::string& message);
/// The same by a company, which many more read. `imageString` names its logo: "tones.png".
void postChirpForCompany(Game& game, int64_t artistId, const std::string& name, const std::string& imageString,
                         const std::string& message);

/// Pinning one clears any other; it changes the order of display only.
Outcome pinChirp(Game& game, int64_t id);
Outcome unpinChirp(Game& game, int64_t id);
/// Refused, silently, while the post announces a song in production. `chirpId` never falls.
Outcome deleteChirp(Game& game, int64_t id);
bool chirpDeletable(const GameState& state, const Chirp& chirp);

/// Positions in order of display: the pinned one first, then newest first.
std::vector<size_t> chirpsInOrder(const GameState& state);

/// The face beside a post. The artist has one face everywhere, also on what was posted before it was chosen.
Picture portraitOf(const GameState& state, const Chirp& chirp);

/// "5h": whole hours since the post.
std::string chirpAge(const Chirp& chirp, Date now);

}  // namespace backbeat
