#include <algorithm>
#include <array>

#include "play/golden_careers.h"
#include "shell/simulate/player.h"

namespace backbeat {

namespace {

constexpr int64_t weeks = 520;
constexpr int64_t weeksBetweenSongs = 3;
constexpr int64_t songsOnAlbum = 4;
constexpr int64_t energyKeptForMusic = 30;
constexpr std::array<const char*, 5> practised = {"songWriting", "vocalRange", "rhythm", "charisma", "virality"};

/// Position of the album in production with that title among the options of the song screen; "0" is the single.
std::string albumOption(const GameState& state) {
  int64_t option = 0;
  int64_t shown = 0;
  for (const Album& album : state.saveAllAlbumList) {
    if (album.isReleased || album.albumId == 0) continue;
    option = ++shown;
  }
  return std::to_string(option);
}

void makeSong(Player& player, int64_t week) {
  player.tab(musicTab);
  player.press("createSongButton");
  player.press("title", "Letter " + std::to_string(week));
  const double cash = player.state().totalCashAvailable;
  const std::string hired = cash > 200'000 ? "5" : cash > 20'000 ? "2" : "0";
  for (const char* choice : {"writing", "musicality", "studio"}) player.press(choice, hired);
  player.press("album", albumOption(player.state()));
  player.press("createSongButton");
  player.settle();
  player.tab(musicTab);
}

/// Releases what waits and belongs to no album.
void releaseSingle(Player& player) {
  const auto& songs = player.state().saveAllSongList;
  const auto waiting =
      std::find_if(songs.begin(), songs.end(), [](const Song& song) { return !song.isReleased && song.albumId == 0; });
  if (waiting == songs.end()) return;
  player.tab(musicTab);
  player.press("kind", "0");
  player.press("song:" + std::to_string(waiting->songId));
  player.tryPress("boostProduction");
  player.press("releaseButton");
  player.settle();
}

void workOnAlbum(Player& player, int64_t week) {
  const auto& albums = player.state().saveAllAlbumList;
  const auto inProduction = std::find_if(albums.begin(), albums.end(),
                                         [](const Album& album) { return !album.isReleased && album.albumId > 0; });
  player.tab(musicTab);
  if (inProduction == albums.end()) {
    player.press("createAlbumButton");
    player.press("title", "Volume " + std::to_string(week));
    player.press("createAlbumButton");
    player.settle();
    return;
  }
  if (inProduction->songCount < songsOnAlbum) return;
  const std::string album = "album:" + std::to_string(inProduction->albumId);
  player.press("kind", "1");
  player.press(album);
  player.press("marketingButton");
  player.press("plan:" + std::string(player.state().totalCashAvailable > 50'000 ? "3" : "1"));
  player.press("setMarketingButton");
  player.settle();
  player.tab(musicTab);
  player.press("kind", "1");
  player.press(album);
  player.press("releaseButton");
  player.settle();
  player.tab(musicTab);
  player.press("kind", "0");
}

void practise(Player& player, int64_t week) {
  player.tab(lifeTab);
  player.press("goToMyMusic");
  const std::string trait = practised[static_cast<size_t>(week) % practised.size()];
  int64_t before = 0;
  while (before != player.state().totalEnergyAvailable && player.state().totalEnergyAvailable > energyKeptForMusic) {
    before = player.state().totalEnergyAvailable;
    player.press("levelUpTrait:" + trait);
    player.settle();
  }
}

void lookForWork(Player& player) {
  if (player.state().weeklyJobContractRemaining > 0 || player.state().totalCashAvailable > 10'000) return;
  player.tab(lifeTab);
  player.press("goToJobBoardButton");
  player.tryPress("jobButton1");
  player.settle();
}

void answerLabel(Player& player) {
  player.tab(homeTab);
  if (player.launch().contractOfferState == 0 || player.state().underContract >= 1) return;
  player.press("goToContractOffer");
  player.press("signContract");
  player.settle();
  player.tab(homeTab);
}

}  // namespace

void playGoldenDecade(Player& player) {
  player.press("name", "Mara Quill");
  player.press("saveButton");
  for (int64_t week = 1; week <= weeks; ++week) {
    if (week % weeksBetweenSongs == 1) makeSong(player, week);
    if (week % weeksBetweenSongs == 2) releaseSingle(player);
    if (week > 52 && week % weeksBetweenSongs == 0) workOnAlbum(player, week);
    lookForWork(player);
    practise(player, week);
    answerLabel(player);
    player.endTheWeek(week % 2 == 0);
  }
}

}  // namespace backbeat
