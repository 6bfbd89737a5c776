#include "play/worlds.h"

#include "music/builders.h"
#include "support/dates.h"
#include "video/builders.h"

namespace backbeat {
namespace {

/// Three videos in the phases of their lives, a song that nobody has filmed, and enough to film it.
void onFilm(GameState& state) {
  setDate(state, 200);
  furnishCareer(state, 5, 12);
  state.directing = 45;
  state.totalCashAvailable = 900'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 150;
  state.youVideoSubscriberCount = 240'000;
  state.assignSubscribers = state.didSubscribe = 1;
  state.moreInfoDescription = "Tickets at the door";
  MusicVideo fresh = videoOf(state, firstWorldSong);
  fresh.styleOfVideo = 5;
  fresh.viewBonus = 1.5;
  fresh.cameos = {"Bixby Marsh", "Petra Lund"};
  MusicVideo residual = videoOf(state, firstWorldSong + 3);
  residual.productionRating = 95;
  residual.marketingScore = residual.viralityScore = 0;
  residual.totalViews = 990'000'000;
  residual.likes = 40'000'000;
  residual.comments = 2'000'000;
  MusicVideo over = videoOf(state, firstWorldSong + 6);
  over.styleOfVideo = 3;
  over.viewBonus = 0.5;
  over.productionRating = 12;
  over.marketingScore = over.viralityScore = 0;
  over.totalViews = 8'400;
  addVideo(state, over, 40);
  addVideo(state, residual, 7);
  addVideo(state, fresh);
  for (int64_t ago = 7; ago > 0; --ago) addVideoViews(state, state.saveAllMusicVideoList[1], ago, 90'000'000 / ago);
}

/// More videos than one page of the channel holds, the song of one long cleared away, and viewers who turned away.
void filmLibrary(GameState& state) {
  setDate(state, 700);
  furnishCareer(state, 3, 2);
  state.totalCashAvailable = 20;
  state.totalEnergyAvailable = 40;
  state.youVideoSubscriberCount = -1'200;
  state.assignSubscribers = 1;
  for (int64_t number = 0; number < 70; ++number) {
    MusicVideo video = videoOf(state, firstWorldSong - 11 - number);
    video.styleOfVideo = number % 6;
    video.totalViews = 1'000 * (number * 37 % 70);
    video.marketingScore = 0;
    addVideo(state, video, 600 - 8 * number);
  }
}

const RoomWorlds worlds({{"film library", filmLibrary}, {"on film", onFilm}});

}  // namespace
}  // namespace backbeat
