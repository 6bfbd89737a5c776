#include "shell/packs.h"

#include <gtest/gtest.h>

#include <set>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/new_game.h"
#include "shell/native/sqlite_store.h"
#include "shell/trace.h"
#include "support/moody_shop.h"
#include "support/program.h"
#include "support/world.h"

namespace backbeat {
namespace {

using enum PurchaseAnswer::Result;

PurchaseAnswer paid(std::string product, std::string transaction) {
  return {done, std::move(product), std::move(transaction)};
}
PurchaseAnswer given(std::string product, std::string transaction) {
  return {done, std::move(product), std::move(transaction), true};
}

TEST(Packs, BringWhatTheyHoldOnce) {
  World world;
  world.state.totalEnergyAvailable = 90;
  world.settle();
  takePurchase(world.game, paid("energy150", "a"));
  takePurchase(world.game, paid("energy150", "a"));
  takePurchase(world.game, paid("cash50000", "b"));
  EXPECT_EQ(world.state.totalEnergyAvailable, 240);
  EXPECT_EQ(world.state.totalEnergyMax, 100);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 50'000);
  takePurchase(world.game, paid("permanentEnergy5", "c"));
  EXPECT_EQ(world.state.totalEnergyAvailable, 245);
  EXPECT_EQ(world.state.totalEnergyMax, 105);
  EXPECT_EQ(world.state.permanentEnergyUpgrade, 5);
  EXPECT_EQ(world.state.assisted, 1);
}

TEST(Packs, ComeOutOfNothingElseThatAShopSays) {
  World world;
  const GameState before = world.state;
  takePurchase(world.game, {refused, "energy25", "a"});
  EXPECT_FALSE(takePurchase(world.game, {failed, "energy25", "a"}).alerts.empty());
  takePurchase(world.game, paid("energy9000", "b"));
  takePurchase(world.game, paid("energy25", ""));
  EXPECT_EQ(world.state, before);
  EXPECT_FALSE(isCredited(world.state, "b")) << "a version that knows the product will credit it";
  EXPECT_TRUE(takePurchase(world.game, paid("energy25", "a")).done());
  EXPECT_TRUE(isCredited(world.state, "a")) << "it was refused at first and paid in the end";
}

TEST(Packs, AreFreeOnceAGameWeek) {
  World world;
  world.settle();
  takePurchase(world.game, given("energy25", "a"));
  takePurchase(world.game, given("energy25", "b"));
  EXPECT_EQ(world.state.totalEnergyAvailable, 125);
  EXPECT_TRUE(isCredited(world.state, "b")) << "it is settled, though it brought nothing";
  takePurchase(world.game, given("energy60", "c"));
  takePurchase(world.game, paid("energy25", "d"));
  EXPECT_EQ(world.state.totalEnergyAvailable, 210) << "another pack, and one that was paid, have their own measure";
  world.state.weekNumberForTracking += 1;
  takePurchase(world.game, given("energy25", "e"));
  EXPECT_EQ(world.state.totalEnergyAvailable, 235);
  EXPECT_EQ(world.state.packWeeks.size(), 2u);
  world.settle();
}

TEST(Packs, ARestartForgetsTheMarkOnlyWithoutEnergyForGood) {
  World world;
  takePurchase(world.game, given("energy25", "a"));
  restartGame(world.game);
  EXPECT_EQ(world.state.assisted, 0);
  EXPECT_FALSE(takenThisWeek(world.state, "energy25")) << "another life, another first week";
  EXPECT_TRUE(isCredited(world.state, "a"));
  takePurchase(world.game, given("permanentEnergy5", "b"));
  restartGame(world.game);
  EXPECT_EQ(world.state.assisted, 1);
  EXPECT_EQ(world.state.totalEnergyMax, 105);
  takePurchase(world.game, given("energy25", "c"));
  endLives(world.game, Lifetime::artist);
  EXPECT_EQ(world.state.assisted, 1) << "an heir inherits it";
  EXPECT_TRUE(takenThisWeek(world.state, "energy25"));
}

/// A career on a device with such a shop, played as the program around the game does.
class Device {
 public:
  explicit Device(MoodyShop::Mood mood) : shop({mood}) { launch(); }

  void launch() {
    career.play(launchEvent(0, 7));
    hear(std::vector(shop.unfinished()));
  }
  void hear(const std::vector<PurchaseAnswer>& answers) {
    for (const PurchaseAnswer& answer : answers) career.play(purchaseEvent(0, answer));
  }
  void buy(const char* product) {
    buyPack(career.session().game(), product);
    hear(shop.takeAnswers());
  }
  const GameState& state() { return career.session().game().state; }

  MemoryStore store;
  MoodyShop shop;
  TraceRecorder career{store, shop};
};

TEST(Packs, AreCreditedOnceWhereverThePowerGoes) {
  using enum MoodyShop::Mood;
  for (const MoodyShop::Mood mood : {prompt, twice, late}) {
    for (const int64_t failures : {0, 1, 2, 1'000}) {
      SCOPED_TRACE(testing::Message() << static_cast<int>(mood) << " and " << failures << " failed writes");
      Device device(mood);
      device.store.failNext(failures);
      device.buy("permanentEnergy5");
      const bool told = device.shop.unfinished().empty();
      EXPECT_TRUE(!told || isCredited(GameState(device.state()), "purchase 1"));
      device.store.failNext(0);
      device.launch();  // whatever was not written is gone with the old launch
      EXPECT_EQ(device.state().permanentEnergyUpgrade, 5);
      EXPECT_TRUE(device.shop.unfinished().empty());
      device.hear({paid("permanentEnergy5", "purchase 1")});
      device.launch();
      EXPECT_EQ(device.state().permanentEnergyUpgrade, 5) << "it says so once more, launches later";
    }
  }
  for (const MoodyShop::Mood mood : {unreachable, refusing}) {
    Device device(mood);
    device.buy("permanentEnergy5");
    device.launch();
    EXPECT_EQ(device.state().permanentEnergyUpgrade, 0);
    EXPECT_FALSE(isAwaited(device.career.session().game(), "permanentEnergy5")) << "it can be asked for again";
  }
}

/// A store whose purchases belong to it: what another career brings or lacks changes nothing of them.
void expectDevicesRowsStay(CareerStore& store) {
  const auto holds = [&](const char* transaction) {
    GameState state;
    const LoadReport report = SaveFile(store).load(state);
    EXPECT_TRUE(report.readable && report.damaged.empty());
    EXPECT_EQ(report.lost, 0);
    return isCredited(state, transaction);
  };
  GameState career;
  EXPECT_TRUE(store.replaceAll(rowsOf(career)));
  EXPECT_TRUE(store.keepSnapshot("000001|newYear|a|b"));
  MoodyShop shop;
  TraceRecorder played(store, shop);
  played.play(launchEvent(0, 7));
  for (int i = 0; i < 200; ++i) played.play(purchaseEvent(0, paid("cash5000", "p" + std::to_string(i))));
  EXPECT_TRUE(holds("p199"));
  EXPECT_TRUE(store.restoreSnapshot("000001|newYear|a|b"));
  EXPECT_TRUE(holds("p0") && holds("p199")) << "after a way back";
  GameState foreign;
  foreign.creditedPurchases.append({"foreign"});
  EXPECT_TRUE(store.replaceAll(rowsOf(foreign)));
  EXPECT_TRUE(holds("p199")) << "after an import";
  EXPECT_FALSE(holds("foreign"));
}

TEST(Packs, PurchasesBelongToTheDevice) {
  MemoryStore memory;
  expectDevicesRowsStay(memory);
  const SqliteStore::Opened opened = SqliteStore::open(freshFile("packs.save"));
  ASSERT_TRUE(opened.store) << opened.problem;
  expectDevicesRowsStay(*opened.store);
  MemoryStore empty;
  GameState career;
  career.creditedPurchases.append({"mine"});
  EXPECT_TRUE(empty.replaceAll(rowsOf(career)));
  GameState there;
  SaveFile(empty).load(there);
  EXPECT_TRUE(isCredited(there, "mine")) << "a new device takes what the file brings";
}

TEST(Packs, AReplayBringsThemWithoutAShop) {
  std::string text;
  MemoryStore store;
  MoodyShop shop({MoodyShop::Mood::prompt});
  TraceRecorder career(store, shop, [&](const std::string& line) { text += line + "\n"; });
  career.play(launchEvent(0, 7));
  career.play(purchaseEvent(1, given("cash500000", "a transaction")));
  const Trace trace = readTrace(text);
  MemoryStore elsewhere;
  QuietPlatform none;
  TraceRecorder replay(elsewhere, none);
  for (const TraceEvent& event : trace.events) replay.play(event);
  EXPECT_DOUBLE_EQ(replay.session().game().state.totalCashAvailable, 500'000);
  EXPECT_EQ(stateHash(replay.session().game().state), stateHash(career.session().game().state));
}

}  // namespace
}  // namespace backbeat
