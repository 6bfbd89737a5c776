#include "wealth/venture_sale.h"

#include <gmock/gmock.h>

#include "core/view_find.h"
#include "support/dates.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/screens/sell_venture_shares_view_controller.h"
#include "wealth/screens/venture_words.h"
#include "wealth/ventures.h"

namespace backbeat {
namespace {

TEST(VentureSale, TheOfferIsThirtyTwentyOrFifteenPercentShort) {
  const std::pair<int64_t, double> bands[] = {{0, 0.7}, {50, 0.7}, {51, 0.8}, {75, 0.8}, {76, 0.85}, {100, 0.85}};
  for (const auto& [roll, rate] : bands) EXPECT_DOUBLE_EQ(buyBackRate(roll), rate) << roll;
}

TEST(VentureSale, OneOfferAWeekWhichStaysUntilItIsAnswered) {
  World world;
  GameState& state = world.state;
  setDate(state, 200);
  state.saveAllVentureInvestments.append(stakeIn(state, 4, 0));
  state.totalCashAvailable = 0;
  state.biggestExit = 100;
  world.settle();
  world.random.integerIs(0, 100, 80);
  askForOffer(world.game, 4);
  askForOffer(world.game, 4);
  EXPECT_DOUBLE_EQ(dollarsOf(state.saveAllVentureInvestments[0], *offerFor(world.game, 4)), 170'000);
  EXPECT_TRUE(declineOffer(world.game, 4).done());
  askForOffer(world.game, 4);
  EXPECT_FALSE(offerFor(world.game, 4)) << "nobody asks twice in a week";
  EXPECT_EQ(sellStake(world.game, 4).result, Result::refused);

  setDate(state, 201);
  world.settle();
  world.random.integerIs(0, 100, 0);
  askForOffer(world.game, 4);
  EXPECT_TRUE(sellStake(world.game, 4).done());
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 140'000);
  EXPECT_DOUBLE_EQ(state.biggestExit, 140'000);
  EXPECT_EQ(titleOf(state.saveAllVentureInvestments[0]), "Flow (PRIVATE EXIT)");
  askForOffer(world.game, 4);
  EXPECT_EQ(sellStake(world.game, 4).result, Result::refused) << "it is gone";
}

TEST(VentureSale, WhoLedSeveralRoundsOwnsThemInOne) {
  World world;
  Venture stake = stakeIn(world.state, 4, 0);
  stake.shareholderName = {"Walt & Sons", "Creative Ventures", "Walt & Sons"};
  stake.shareholderPercentage = {5, 8, 20};
  world.state.saveAllVentureInvestments.append(std::move(stake));
  std::vector<std::string> owners;
  for (const Gauge& owner : blockOf<Gauges>(SellVentureSharesViewController(world.game, 4).view()).items) {
    owners.push_back(owner.label + " " + owner.value);
  }
  EXPECT_THAT(owners, testing::ElementsAre("You 10%", "Walt & Sons 25%", "Creative Ventures 8%", "Not sold 85%"));
}

TEST(VentureSale, AGainWearsItsSignFromOnePercentOn) {
  EXPECT_EQ(gainText(1), "+1%");
  EXPECT_EQ(gainText(0.6), "1%");
  EXPECT_EQ(gainText(-0.9), "1%");
  EXPECT_EQ(gainText(-30.2), "-30%");
}

}  // namespace
}  // namespace backbeat
