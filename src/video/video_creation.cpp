#include "video/video_creation.h"

#include <algorithm>

#include "career/label_contract.h"
#include "career/skill.h"
#include "core/calendar.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "music/guests.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

constexpr double defaultMarketing = 10;
constexpr double labelViewRate = 0.01;  // dollars a view; the rate agreed with a label is not asked: intended
constexpr int64_t shortestVideo = 150;  // seconds
constexpr int64_t longestVideo = 490;

constexpr int64_t leastGiftedTalent = 8;
constexpr int64_t greatestWeakestTrait = 110;

/// Half of each cameo's virality and rating, on average.
struct CameoShare {
  double virality = 0;
  double rating = 0;
  double cost = 0;  // the plain sum: no contract gives a discount here
  std::vector<std::string> names;
};

CameoShare shareOfCameos(const GameState& state, const std::vector<int64_t>& picked) {
  CameoShare share;
  for (const CelebrityCameo& cameo : cameoTable(state)) {
    if (std::find(picked.begin(), picked.end(), cameo.id) == picked.end()) continue;
    share.virality += cameo.virality * 0.5;
    share.rating += cameo.rating * 0.5;
    share.cost += static_cast<double>(cameo.cost);
    share.names.push_back(cameo.name);
  }
  if (share.names.empty()) return share;
  share.virality /= static_cast<double>(share.names.size());
  share.rating /= static_cast<double>(share.names.size());
  return share;
}

void applyLabelTerms(const GameState& state, MusicVideo& video) {
  if (state.underContract >= 1) {
    const size_t running = runningContract(state);
    if (running != state.saveAllContractLabelList.size()) {
      video.percentageOfEarnings = 1 - state.saveAllContractLabelList[running].labelPercentageRate;
    }
    // The contract's marketing replaces the promotion that was paid for, and the default too. Intended.
    video.marketingScore = static_cast<double>(state.contractMarketingBoost);
  }
  if (state.isLabelLaunched >= 1) {
    video.streamPayRate = labelViewRate;
    video.marketingScore += static_cast<double>(state.labelMarketingBoost);
  }
}

void applyStyle(const VideoStyle& style, MusicVideo& video) {
  video.viewBonus = style.viewBonus;
  video.productionRating += style.extraProductionRating;
  video.viralityScore += style.extraVirality;
  video.marketingScore += style.extraMarketing;
}

/// The video before anything is drawn for it.
MusicVideo videoOf(const GameState& state, const Song& song, const VideoDraft& draft) {
  MusicVideo video;
  video.songId = song.songId;
  video.songTitle = song.title;
  video.songFeatures = song.features;
  video.albumId = song.albumId;
  video.albumTitle = song.album;
  video.year = state.yearNumber;
  video.weekForTracking = state.weekNumberForTracking;
  video.isReleased = true;
  video.styleOfVideo = static_cast<int64_t>(draft.style);
  video.director = draft.director.name;
  video.productionCost = videoCosts(state, draft).total();
  video.marketingScore = defaultMarketing + static_cast<double>(draft.promotionScore);
  video.streamPayRate = state.youViewStreamingRate;
  video.percentageOfEarnings = 1.0;
  return video;
}

/// Chance that is never lucky and never unlucky, for telling what is to be expected.
class MiddlingLuck final : public Random {
 public:
  uint64_t bits64() override { return 0; }
  double uniformDouble(double lo, double hi) override { return (lo + hi) / 2; }
};

Outcome refuseQuietly() {
  Outcome outcome;
  outcome.result = Result::refused;
  return outcome;
}

double rollVirality(Random& random, const GameState& state) {
  return drawViralityRoll(random, state.virality + state.fashionViralityBonus);
}

}  // namespace

VideoCosts videoCosts(const GameState& state, const VideoDraft& draft) {
  return {.style = videoStyles[draft.style].costOfRating * static_cast<double>(draft.director.rating),
          .director = static_cast<double>(draft.director.cost),
          .promotion = static_cast<double>(videoPromotions[draft.promotion].cost),
          .cameos = shareOfCameos(state, draft.cameos).cost};
}

Price costToProduceMusicVideo(const GameState& state, const VideoDraft& draft) {
  return {.energy = videoEnergy, .dollars = videoCosts(state, draft).total()};
}

int64_t drawSoloGift(Game& game, const std::vector<int64_t>& cameos) {
  if (!cameos.empty()) return 0;
  const GameState& state = game.state;
  const int64_t weakest = std::min({state.charisma, state.virality, state.directing, greatestWeakestTrait});
  const int64_t talentOnScreen = state.charisma + state.virality + state.directing + weakest;
  if (talentOnScreen < leastGiftedTalent) return 0;
  return game.random.integer(0, talentOnScreen / 4) / 2;
}

double videoRoll(Random& random, int64_t finalDirectingRating, int64_t charisma, double viralityRoll,
                 double songRating) {
  const double d = static_cast<double>(finalDirectingRating) * 0.75;
  const double c = static_cast<double>(charisma) * 0.75;
  return qualityRoll(random, {d, c, songRating}, viralityRoll);
}

double foreseenRating(const GameState& state, const VideoDraft& draft) {
  const auto position = songPosition(state, draft.songId);
  if (!position) return 0;
  MiddlingLuck luck;
  const double viralityRoll = rollVirality(luck, state);
  return shareOfCameos(state, draft.cameos).rating + videoStyles[draft.style].extraProductionRating +
         videoRoll(luck, draft.director.rating, state.charisma, viralityRoll,
                   state.saveAllSongList[*position].productionRating);
}

bool canBeFilmed(const GameState& state, int64_t songId) {
  const auto position = songPosition(state, songId);
  return position && state.saveAllSongList[*position].isReleased &&
         state.saveAllMusicVideoList.historyOf(songId).empty();
}

Outcome createMusicVideo(Game& game, const VideoDraft& draft) {
  GameState& state = game.state;
  if (!canBeFilmed(state, draft.songId)) return refuseQuietly();
  const Price cost = costToProduceMusicVideo(state, draft);
  if (!hasEnergy(state, cost)) return bounce();
  if (!hasCash(state, cost)) {
    return noCash<"💵 Not Enough 💵">("\nYou don't have the funds required to shoot this music video.");
  }
  const Song& song = state.saveAllSongList[*songPosition(state, draft.songId)];
  MusicVideo video = videoOf(state, song, draft);
  video.videoId = ++state.musicVideoId;
  CameoShare cameos = shareOfCameos(state, draft.cameos);
  video.minutes = game.random.integer(shortestVideo, longestVideo);
  const double viralityRoll = rollVirality(game.random, state);
  video.viralityScore =
      cameos.virality + viralityRoll +
      static_cast<double>(state.contractViralityBoost + draft.viralityBoost + state.labelViralityBoost);
  video.productionRating = cameos.rating + videoRoll(game.random, draft.director.rating, state.charisma, viralityRoll,
                                                     song.productionRating);
  video.cameos = std::move(cameos.names);
  applyLabelTerms(state, video);
  applyStyle(videoStyles[draft.style], video);
  state.saveAllMusicVideoList.append(std::move(video));
  state.musicVideoId += 1;
  game.save(&GameState::saveAllMusicVideoList, &GameState::musicVideoId);
  pay(game, cost);
  game.launch.selectedCameos.clear();
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
