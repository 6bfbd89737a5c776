// Making a music video: what it costs, how good it turns out, and what it starts with.
#pragma once

#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "video/video_options.h"

namespace backbeat {

inline constexpr int64_t videoEnergy = 25;

/// What the player chose for the video in preparation.
struct VideoDraft {
  int64_t songId = -1;
  size_t style = 0;
  Director director;
  size_t promotion = 0;
  int64_t promotionScore = 0;   ///< drawn when the promotion was picked
  int64_t viralityBoost = 0;    ///< the gift of this visit
  std::vector<int64_t> cameos;  ///< ids of the faces picked
};

/// Dollars of each part of a video.
struct VideoCosts {
  double style = 0;
  double director = 0;
  double promotion = 0;
  double cameos = 0;

  double total() const { return style + director + promotion + cameos; }
};
VideoCosts videoCosts(const GameState& state, const VideoDraft& draft);
Price costToProduceMusicVideo(const GameState& state, const VideoDraft& draft);

/// Virality given to an artist of some talent who goes without cameos; nothing is drawn for the others, nor with one.
int64_t drawSoloGift(Game& game, const std::vector<int64_t>& cameos);

/// Rating of the film itself: a roll over the song in full, directing and charisma at three quarters.
double videoRoll(Random& random, int64_t finalDirectingRating, int64_t charisma, double viralityRoll,
                 double songRating);

/// The rating such a video would have with middling luck, cameos and style included.
double foreseenRating(const GameState& state, const VideoDraft& draft);

/// Whether the song is out and not filmed yet.
bool canBeFilmed(const GameState& state, int64_t songId);

/// Makes the video and puts it out at once. Refused without a word for a song that cannot be filmed, then without the
/// energy (the figure shakes), then without the money; nothing is paid then. Success asks the screen to close.
Outcome createMusicVideo(Game& game, const VideoDraft& draft);

}  // namespace backbeat
