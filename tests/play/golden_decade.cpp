#include <algorithm>
#include <array>
#include <utility>

#include "core/view_find.h"
#include "play/golden_careers.h"
#include "shell/simulate/player.h"

namespace backbeat {

namespace {

constexpr int64_t weeks = 520;
constexpr int64_t weeksBetweenSongs = 3;
constexpr int64_t songsOnAlbum = 4;
constexpr int64_t energyKeptForMusic = 30;
constexpr int64_t weeksBetweenVideos = 12;
constexpr int64_t weeksBetweenLooksAtTheShop = 13;
constexpr double enoughForAShop = 60'000;
constexpr int64_t listenersOfAShop = 10'000;
constexpr std::array<const char*, 3> venues = {"venue:19", "venue:22", "venue:25"};
constexpr std::array<const char*, 3> products = {"0", "15", "13"};  // a cassette, a phone case, a mug
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

/// The latest song that is out and has no video.
const Song* songToFilm(const GameState& state) {
  const Song* latest = nullptr;
  for (const Song& song : state.saveAllSongList) {
    if (!song.isReleased || !state.saveAllMusicVideoList.historyOf(song.songId).empty()) continue;
    if (!latest || std::pair(song.releaseWeek, song.songId) > std::pair(latest->releaseWeek, latest->songId)) {
      latest = &song;
    }
  }
  return latest;
}

/// Another style each time, with a director and a face where the money allows.
void film(Player& player, int64_t week) {
  const Song* song = songToFilm(player.state());
  if (!song) return;
  const bool hasMoney = player.state().totalCashAvailable > 50'000;
  player.tab(musicTab);
  player.press("kind", "0");
  player.press("song:" + std::to_string(song->songId));
  player.press("musicVideoButton");
  player.press("style", std::to_string(week / weeksBetweenVideos % 6));
  player.press("director", hasMoney ? "1" : "0");
  player.press("promotion", hasMoney ? "2" : "0");
  player.press("createButton");
  player.settle();
}

void goOnTour(Player& player) {
  const GameState& state = player.state();
  if (state.underContract < 1 || state.onTour != 0 || state.timeUntilNextTour >= 1) return;
  player.tab(musicTab);
  player.press("goToTour");
  player.press("showsPerVenue", "1");
  for (const char* venue : venues) player.press(venue);
  player.press("startTouringButton");
  player.settle();
}

void launchProduct(Player& player) {
  const std::string option = products[static_cast<size_t>(player.state().merchId) % products.size()];
  player.press("goToLaunchNewMerch");
  player.press("option", option);
  player.press("dice");
  player.press("price", "3");
  if (option == "0") {
    player.press("goToChooseMerchSongList");
    for (const Row& song : rowsOf(player.view())) {
      if (!song.id.empty() && !song.selected) player.press(song.id);
      if (player.launch().merchSongs.size() == 8) break;
    }
    player.press("doneButton");
  }
  player.press("launchMerchButton");
  player.settle();
}

/// Orders again what is sold out, retires the oldest product when the shelf is full, and launches another one.
void keepShop(Player& player) {
  const GameState& state = player.state();
  if (state.totalCashAvailable < enoughForAShop || state.totalFans < listenersOfAShop) return;
  player.tab(businessTab);
  player.press("goToMerch");
  for (const char* service : {"goToMerchWebsite", "goToMerchManufacturing", "goToMerchLogistics"}) {
    if (state.merchId > 0) break;
    player.press(service);
    player.press("plan", "0");
    player.back();
  }
  int64_t onShelf = 0;
  std::string oldest;
  std::string soldOut;
  for (const Merch& product : state.saveAllMerchReleasedList) {
    if (product.isRetired != 0) continue;
    const std::string id = "goToAdminMerch:" + std::to_string(product.merchId);
    if (onShelf++ == 0) oldest = id;
    if (product.remainingInventory < 1) soldOut = id;
  }
  if (!soldOut.empty()) {
    player.press(soldOut);
    player.press("restockButton");
    player.answer(1);
  } else if (onShelf == static_cast<int64_t>(products.size())) {
    player.press(oldest);
    player.press("retireButton");
    player.answer(1);
  } else {
    launchProduct(player);
  }
  player.settle();
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
    if (week % weeksBetweenVideos == 0) film(player, week);
    goOnTour(player);
    if (week % weeksBetweenLooksAtTheShop == 0) keepShop(player);
    player.endTheWeek(week % 2 == 0);
  }
}

}  // namespace backbeat
