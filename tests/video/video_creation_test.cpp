#include "video/video_creation.h"

#include <gtest/gtest.h>

#include "career/builders.h"
#include "core/view_find.h"
#include "music/builders.h"
#include "support/world.h"
#include "video/screens/cameo_view_controller.h"
#include "video/screens/create_a_music_video_view_controller.h"

namespace backbeat {
namespace {

/// A released song and an artist with some money; directing 40, charisma 20, virality 20.
struct FilmSet : World {
  FilmSet() {
    state.totalCashAvailable = 100'000;
    state.charisma = state.virality = 20;
    state.directing = 40;
    Song song = releasedSong(12, "Paper Lanterns");
    song.features = {"", "Ann Bright"};
    state.saveAllSongList.append(song);
    draft.songId = 12;
    draft.director = {"Directed by Mira", 40, 0};
  }
  /// Half a minute more than two, a virality roll of 7.5, and luck at its least: (30 + 15 + 40 + 7.5 + 15) / 5.
  void rolls() { random.integerIs(150, 490, 150).doubleIs(0, 20, 10).doubleIs(15, 23.125, 15); }
  const MusicVideo& made() const { return state.saveAllMusicVideoList.back(); }
  void create() {
    rolls();
    EXPECT_TRUE(createMusicVideo(game, draft).go.has_value());
  }

  VideoDraft draft;
};

TEST(VideoCreation, TheRollCountsTheWeakestAndTheMean) {
  ScriptedRandom random;
  random.doubleIs(15, 31.25, 30).doubleIs(22.5, 45, 22.5);
  EXPECT_DOUBLE_EQ(videoRoll(random, 40, 20, 10, 70), (125.0 + 30) / 5);
  EXPECT_DOUBLE_EQ(videoRoll(random, 80, 80, 0, 60), (180.0 + 22.5) / 5)
      << "all are above the mean: luck from half of it";
}

TEST(VideoCreation, AVideoIsOutAtOnceAndCostsItsParts) {
  FilmSet set;
  set.state.totalEnergyAvailable = 30;
  set.state.contractViralityBoost = 4;
  set.state.labelViralityBoost = 3;
  set.draft.style = 2;
  set.draft.director.cost = 2'250;
  set.draft.promotion = 3;
  set.draft.promotionScore = 31;
  set.draft.viralityBoost = 5;
  set.settle();
  EXPECT_EQ(costToProduceMusicVideo(set.state, set.draft), (Price{.energy = 25, .dollars = 12'000 + 2'250 + 18'000}));
  set.create();
  EXPECT_EQ(set.made().videoId, 1);
  EXPECT_EQ(set.state.musicVideoId, 2) << "a number goes by after the video, too";
  EXPECT_EQ(set.made().songFeatures.at(1), "Ann Bright");
  EXPECT_EQ(set.made().minutes, 150);
  EXPECT_DOUBLE_EQ(set.made().viralityScore, 7.5 + 4 + 5 + 3 + 6);
  EXPECT_DOUBLE_EQ(set.made().productionRating, 21.5);
  EXPECT_DOUBLE_EQ(set.made().marketingScore, 41);
  EXPECT_DOUBLE_EQ(set.made().productionCost, 32'250);
  EXPECT_TRUE(set.made().isReleased && set.made().cameos.empty());
  EXPECT_EQ(set.state.totalEnergyAvailable, 5);
  EXPECT_EQ(set.state.totalCashAvailable, 67'750);
}

TEST(VideoCreation, EachStyleHasItsEffectAndTheDirectorMakesItDear) {
  const double dollars[] = {4'000, 36'000, 12'000, 0, 20'000, 8'000};
  const double bonus[] = {1.25, 1, 1, 0.5, 1, 1.5};
  for (size_t style = 0; style < videoStyles.size(); ++style) {
    SCOPED_TRACE(videoStyles[style].name);
    FilmSet set;
    set.draft.style = style;
    EXPECT_DOUBLE_EQ(videoCosts(set.state, set.draft).total(), dollars[style]);
    set.create();
    EXPECT_DOUBLE_EQ(set.made().viewBonus, bonus[style]);
    EXPECT_DOUBLE_EQ(set.made().productionRating, style == 1 ? 36.5 : 21.5);
    EXPECT_DOUBLE_EQ(set.made().viralityScore, style == 2 ? 13.5 : 7.5);
    EXPECT_DOUBLE_EQ(set.made().marketingScore, style == 4 ? 20 : 10);
  }
}

TEST(VideoCreation, CameosLendHalfOfTheMeanAndCostTheirPlainSum) {
  FilmSet set;
  set.state.contractFeatureDiscount = 0.5;
  set.draft.cameos = {3, 1};  // 12,500 with rating 26 and virality 18; 2,500 with 12 and 8
  set.game.launch.selectedCameos = set.draft.cameos;
  EXPECT_DOUBLE_EQ(videoCosts(set.state, set.draft).cameos, 15'000);
  set.create();
  EXPECT_DOUBLE_EQ(set.made().viralityScore, 7.5 + 6.5);
  EXPECT_DOUBLE_EQ(set.made().productionRating, 21.5 + 9.5);
  EXPECT_EQ(set.made().cameos, (std::vector<std::string>{"Bixby Marsh", "Chef Amaro"}));
  EXPECT_TRUE(set.game.launch.selectedCameos.empty());
}

TEST(VideoCreation, AContractWipesThePromotionAndTheOwnLabelSetsARateOfItsOwn) {
  FilmSet set;
  set.state.underContract = 1;
  set.state.contractMarketingBoost = 30;
  set.state.youViewStreamingRate = 0.008;
  set.draft.promotionScore = 90;
  set.draft.style = 4;
  set.create();
  EXPECT_DOUBLE_EQ(set.made().marketingScore, 40);
  EXPECT_DOUBLE_EQ(set.made().percentageOfEarnings, 1) << "no record of the contract, nothing is kept";
  EXPECT_DOUBLE_EQ(set.made().streamPayRate, 0.008);

  FilmSet owner;
  ContractLabel contract;
  contract.labelPercentageRate = 0.75;
  owner.state.saveAllContractLabelList.append(contract);
  owner.state.underContract = owner.state.isLabelLaunched = 1;
  owner.state.labelMarketingBoost = 5;
  owner.create();
  EXPECT_DOUBLE_EQ(owner.made().marketingScore, 5);
  EXPECT_DOUBLE_EQ(owner.made().percentageOfEarnings, 0.25);
  EXPECT_DOUBLE_EQ(owner.made().streamPayRate, 0.01);
}

TEST(VideoCreation, IsRefusedWithoutEnergyMoneyOrASongToFilm) {
  FilmSet set;
  set.state.saveAllSongList.append(songInProduction(15, "Soon"));
  set.draft.promotion = 5;
  set.settle();
  EXPECT_EQ(createMusicVideo(set.game, set.draft).alerts.at(0).title, "💵 Not Enough 💵");
  set.state.totalEnergyAvailable = 24;
  EXPECT_EQ(createMusicVideo(set.game, set.draft).feedback, Feedback::energyBounce);
  set.state.totalEnergyAvailable = 100;
  set.draft.promotion = 0;
  for (const int64_t nothing : {15, 99}) {
    set.draft.songId = nothing;
    EXPECT_TRUE(createMusicVideo(set.game, set.draft).alerts.empty());
  }
  EXPECT_TRUE(set.state.saveAllMusicVideoList.empty());
  set.draft.songId = 12;
  set.create();
  EXPECT_EQ(createMusicVideo(set.game, set.draft).result, Result::refused) << "one video a song";
  EXPECT_EQ(set.state.saveAllMusicVideoList.size(), 1u);
}

TEST(VideoCreation, TheGiftIsDrawnAtEachRefreshAndWithoutCameosOnly) {
  FilmSet set;  // a gift from 0 to (20 + 20 + 40 + 20) / 4, halved
  set.random.integerIs(-5, 5, -3).integerIs(0, 25, 9);
  CreateAMusicVideoViewController screen(set.game, 12);
  screen.open();
  screen.appear();
  EXPECT_EQ(screen.draft().viralityBoost, 4);
  set.random.integerIs(0, 25, 25);
  screen.act({"director", "5"});
  EXPECT_EQ(screen.draft().viralityBoost, 12);
  EXPECT_EQ(screen.draft().director.rating, 52);
  set.random.integerIs(40, 80, 77).integerIs(0, 25, 2);
  screen.act({"promotion", "4"});
  EXPECT_EQ(screen.draft().promotionScore, 77);
  set.random.integerIs(0, 25, 3);
  screen.act({"promotion", "0"});
  EXPECT_EQ(screen.draft().promotionScore, 0);
  screen.act({"style", "17"});

  CameoViewController cameos(set.game);
  cameos.act({"add:1", ""});
  screen.appear();
  EXPECT_EQ(screen.draft().viralityBoost, 0);
  screen.act({"style", "3"});
  cameos.act({"add:1", ""});
  set.random.integerIs(0, 25, 8);
  screen.appear();
  EXPECT_EQ(screen.draft().viralityBoost, 4);

  set.state.charisma = set.state.directing = 1;
  set.state.virality = 4;  // (1 + 4 + 1 + 1): one short of a gift
  EXPECT_EQ(drawSoloGift(set.game, {}), 0);
}

TEST(VideoCreation, WhatIsForeseenIsTheRollWithMiddlingLuck) {
  FilmSet set;
  set.draft.style = 1;
  set.draft.cameos = {1};
  EXPECT_DOUBLE_EQ(foreseenRating(set.state, set.draft), 15 + 6 + 22.31);  // (92.5 + 19.0625) / 5
  set.draft.songId = 99;
  EXPECT_DOUBLE_EQ(foreseenRating(set.state, set.draft), 0);
}

}  // namespace
}  // namespace backbeat
