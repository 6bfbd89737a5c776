// The artist's channel: who watches it, and how its films are told of.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Once for the player, from 26 listeners on: the first subscribers, a random 30 to 60 % of the listeners. A second
/// life gets none: intended.
void seedSubscribers(Game& game);

/// The artist's own subscription: one subscriber more, or fewer, also below 0.
Outcome toggleSubscribe(Game& game);

/// Position of a video by its id, or the size of the list.
size_t videoPosition(const GameState& state, int64_t videoId);

/// Positions of all videos, the newest first.
std::vector<size_t> videosByAge(const GameState& state);
/// The same, the most viewed first.
std::vector<size_t> videosByViews(const GameState& state);

/// "Paper Lanterns (Official Music Video)"; a lyric video says so.
std::string videoTitle(const MusicVideo& video);

/// "this week", "1 week ago", "3 weeks ago", "5 month(s) ago".
std::string videoAge(const GameState& state, const MusicVideo& video);

/// "4:12".
std::string videoLength(const MusicVideo& video);

/// "1.8M views".
std::string videoViews(const MusicVideo& video);

/// "Directed by Joe Jackson", by the name of a director; the artist's own already says so.
std::string directorOf(const std::string& director);

/// "The official Nova Reyes Channel - new and exclusive music videos ".
std::string channelMotto(const GameState& state);

/// What stands under a video: who plays and sings, and where the song is from.
std::string videoDescription(const GameState& state, const MusicVideo& video);

/// Takes the second text of the channel, 600 characters at most.
void writeMoreInfo(Game& game, const std::string& text);

}  // namespace backbeat
