#include "heavy_career.h"

#include <algorithm>
#include <string>

#include "features/verse_offer.h"
#include "live/tour_plan.h"
#include "merch/plans.h"
#include "merch/product_launch.h"
#include "merch/products.h"
#include "music/streaming.h"
#include "social/chirps.h"
#include "turn/screens/weekly_summary_view_controller.h"
#include "turn/week_cycle.h"
#include "video/video_creation.h"

namespace backbeat {

namespace {

constexpr int64_t famousEnough = 60'000'000;
constexpr int64_t energyEnough = 1'000;
constexpr double richEnough = 1e9;  // dollars
constexpr int64_t greatTrait = 90;
constexpr int64_t weeksOfAMonth = 4;
constexpr int64_t weeksOfASeason = 13;
constexpr int64_t weeksBetweenTours = 26;
constexpr int64_t venuesOfATour = 12;
constexpr int64_t productsOnTheShelf = 12;
constexpr int64_t productsOfASeason = 3;
constexpr size_t songsOfARecord = 12;
constexpr int64_t unitsOfAProduct = 50'000;

std::string songTitle(int64_t id) { return "The Long Way Home " + std::to_string(id); }
std::string albumTitle(int64_t id) { return "Evening Edition " + std::to_string(id / 10); }

void releaseAlbum(GameState& state, int64_t id) {
  Album album;
  album.albumId = id / 10 + 1;
  album.title = albumTitle(id);
  album.isReleased = true;
  album.songCount = 10;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  album.price = 9.99;
  album.marketingScore = 60;
  album.percentageOfEarnings = 1;
  state.saveAllAlbumList.append(std::move(album));
}

void releaseSong(Game& game) {
  GameState& state = game.state;
  Song song;
  song.songId = ++state.songId;
  song.title = songTitle(song.songId);
  song.album = albumTitle(song.songId);
  song.albumId = song.songId / 10 + 1;
  song.isReleased = true;
  song.releaseWeek = state.weekNumberForTracking;
  song.releaseYear = state.yearNumber;
  song.productionRating = game.random.uniformDouble(70, 100);
  song.viralityScore = game.random.uniformDouble(20, 60);
  song.features = {""};
  song.marketingScore = 60;
  song.streamPayRate = 0.001;
  song.percentageOfEarnings = 1;
  state.saveAllSongList.append(std::move(song));
  if (state.songId % 10 == 0) releaseAlbum(state, state.songId);
  game.save(&GameState::saveAllSongList, &GameState::saveAllAlbumList, &GameState::songId);
}

/// The latest song, by the artist's own hand.
void film(Game& game) {
  VideoDraft draft;
  draft.songId = game.state.songId;
  draft.style = static_cast<size_t>(draft.songId) % videoStyles.size();
  draft.director = drawDirectors(game).front();
  createMusicVideo(game, draft);
}

void lendAVerse(Game& game) { acceptVerse(game, drawVerseOffer(game)); }

void setOut(Game& game) {
  TourPlan plan = beginTourPlan(game);
  plan.tempTourTitle = "Evening Tour " + std::to_string(game.state.tourId);
  for (int64_t id = 0; id < venuesOfATour; ++id) addTourLocation(game, plan, id);
  startTour(game, plan);
}

/// The oldest products make room for new ones.
void changeTheShelf(Game& game) {
  GameState& state = game.state;
  int64_t toRetire = activeProducts(state) + productsOfASeason - productsOnTheShelf;
  for (const uint32_t i : state.saveAllMerchReleasedList.awake()) {
    const Merch& product = state.saveAllMerchReleasedList[i];
    if (product.isRetired != 0 || toRetire-- <= 0) continue;
    retireMerch(game, product.merchId, 0);
  }
  for (int64_t i = 0; i < productsOfASeason; ++i) {
    ProductDraft draft;
    draft.option = &merchCatalogue[static_cast<size_t>(state.merchId) % merchCatalogue.size()];
    draft.name = songTitle(state.songId) + " " + std::string(draft.option->productName);
    draft.quantity = unitsOfAProduct;
    draft.pricing = pricingOptions(*draft.option).back();
    for (int64_t id = state.songId; id > 0 && draft.songIds.size() < songsOfARecord; --id) draft.songIds.push_back(id);
    launchProduct(game, draft);
  }
}

/// What is needed to afford all of it, and the talent that makes it last.
void provide(Game& game) {
  GameState& state = game.state;
  state.totalFans = famousEnough;
  state.totalEnergyMax = state.totalEnergyAvailable = energyEnough;
  state.totalCashAvailable = richEnough;
  state.isLabelLaunched = 1;
  for (int64_t* trait : {&state.songWriting, &state.vocalRange, &state.rhythm, &state.charisma, &state.virality}) {
    *trait = greatTrait;
  }
  game.save(&GameState::totalFans, &GameState::totalEnergyMax, &GameState::totalEnergyAvailable,
            &GameState::totalCashAvailable, &GameState::isLabelLaunched, &GameState::songWriting,
            &GameState::vocalRange, &GameState::rhythm, &GameState::charisma, &GameState::virality);
  for (const MerchService* service : merchServices) chooseMerchPlan(game, *service, service->plans.size() - 1);
}

}  // namespace

void liveWeek(Game& game) {
  const int64_t week = game.state.weekNumberForTracking;
  provide(game);
  releaseSong(game);
  if (week % weeksOfAMonth == 0) film(game);
  if (week % weeksOfAMonth == 2) lendAVerse(game);
  if (week % weeksBetweenTours == 1) setOut(game);
  if (week % weeksOfASeason == 3 || activeProducts(game.state) < productsOnTheShelf) changeTheShelf(game);
  postChirpForArtist(game, songTitle(game.state.songId) + " is out! 🎶", 100'000);
  game.saveFile.commit();
}

void playWeek(Game& game) {
  runWeekCycle(game, [&] {
    WeeklySummaryViewController report(game);
    report.open();
    report.appear();
    report.closeButton();
  });
  game.saveFile.commit();
}

GameState heavyCareer(int64_t weeks, LiveWeek live) {
  NullStore nowhere;
  LoneGame past(nowhere);
  past.game.state.myArtistsName = "Mara Quill";
  past.game.state.promptToEnterName = 1;
  for (int64_t week = 0; week < weeks; ++week) {
    live(past.game);
    playWeek(past.game);
  }
  return std::move(past.game.state);
}

size_t recordsIn(const GameState& state) {
  size_t records = 0;
  for (const auto& [key, list] : listsOf(state)) records += list.size();
  return records;
}

size_t songsStreaming(const GameState& state) {
  const auto& songs = state.saveAllSongList;
  return static_cast<size_t>(
      std::count_if(songs.begin(), songs.end(), [&](const Song& song) { return remainingLife(state, song) > 0; }));
}

}  // namespace backbeat
