// Every press of every screen takes what it shows, in careers of very different kinds.
#include <gtest/gtest.h>

#include <set>

#include "core/memory_store.h"
#include "play/press_oracle.h"
#include "play/worlds.h"
#include "shell/native/view_printer.h"
#include "shell/registry.h"
#include "shell/session.h"

namespace backbeat {
namespace {

/// A screen that stands by itself, pressed under the eyes of the oracle.
class WatchedScreen {
 public:
  WatchedScreen(Session& session, const Segue& segue, const std::string& argument)
      : session_(session), segue_(segue), screen_(segue.make(session.game(), argument)) {
    screen_->open();
    screen_->appear();
  }

  Shown shown() const {
    Shown now = session_.shown();
    now.screen = segue_.screen;
    now.view = screen_->view();
    now.alert.reset();
    return now;
  }

  void pressEverything() {
    for (const Pressable& pressable : printScreen(session_.navigator(), shown(), false).pressables) {
      if (wholeNumber(pressable.screenKey) != shown().key) continue;
      const bool isChoice = pressable.takes == Pressable::Takes::option;
      for (int64_t option = 0; option < (isChoice ? pressable.options : 1); ++option) {
        press({pressable.action.id, isChoice ? std::to_string(option) : pressable.action.value});
      }
    }
  }

 private:
  void press(const Action& action) {
    const Outcome outcome = watch(std::to_string(shown().key), action, shown(), action);
    for (const Alert& alert : outcome.alerts) {
      Shown asking = shown();
      asking.alert = Shown::ShownAlert{1, alert};
      const std::string last = std::to_string(alert.buttons.size() - 1);
      watch("alert", {"1", last}, asking, alert.buttons.back().action);
    }
  }

  Outcome watch(const std::string& key, const Action& action, const Shown& before, const Action& forScreen) {
    oracle_.before(before, session_.game().state);
    Outcome outcome = forScreen.id.empty() ? Outcome() : screen_->act(forScreen);
    Shown now = shown();
    now.result = outcome.result;
    const Segue* next = outcome.go ? segueNamed(outcome.go->segue) : nullptr;
    if (next && next->enter) now.result = next->enter(session_.game()).result;
    if (next && now.result == Result::done) {
      const std::unique_ptr<Screen> opened = next->make(session_.game(), outcome.go->argument);
      opened->open();
      now.view = opened->view();
    }
    EXPECT_EQ(oracle_.after(key, action, now, session_.game().state), "") << before.screen << " " << forScreen.id;
    return outcome;
  }

  Session& session_;
  const Segue& segue_;
  std::unique_ptr<Screen> screen_;
  PressOracle oracle_;
};

/// What the artist has before the first press: as the world has it, or so little that hardly anything can be paid.
struct Means {
  std::optional<int64_t> energy;
  std::optional<double> cash;
};
const std::vector<Means> purses = {{}, {0, 30}};

/// One career, in which every screen is opened on its own and pressed all over.
class Walk {
 public:
  explicit Walk(const NamedWorld& world) : world_(world) { settleInto(settled_, world); }

  void visit(const Segue& segue, const std::string& argument, uint64_t seed = 7) {
    for (const Means& means : purses) {
      SCOPED_TRACE(std::string(world_.name) + ", " + std::string(segue.name) + " \"" + argument + "\"");
      MemoryStore store = settled_;
      Session session(store, platform_, seed, Date{1'672'660'800});
      WatchedScreen screen(session, segue, argument);
      GameState& state = session.game().state;
      state.totalEnergyAvailable = means.energy.value_or(state.totalEnergyAvailable);
      state.totalCashAvailable = means.cash.value_or(state.totalCashAvailable);
      const std::string looks = printScreen(session.navigator(), screen.shown(), false).text;
      if (pressed_.insert(std::string(segue.name) + looks).second) screen.pressEverything();
    }
  }

  /// The ids that a screen of this career may be about: what is out, and what is in production.
  std::vector<std::string> arguments() {
    MemoryStore store = settled_;
    const Session session(store, platform_, 1, Date{});
    const GameState& state = session.game().state;
    std::vector<std::string> ids = {""};
    if (!state.saveAllSongList.empty()) {
      ids.push_back(std::to_string(state.saveAllSongList[0].songId));
      ids.push_back(std::to_string(state.saveAllSongList[state.saveAllSongList.size() - 1].songId));
    }
    for (const Album& album : state.saveAllAlbumList) ids.push_back(std::to_string(album.albumId));
    return ids;
  }

 private:
  const NamedWorld& world_;
  MemoryStore settled_;
  QuietPlatform platform_;
  std::set<std::string> pressed_;  ///< looks of the screens that were pressed already
};

TEST(PressPrice, WhatIsShownIsWhatIsTakenAndARefusalTakesNothing) {
  constexpr uint64_t reports = 12;  // each draws other side gigs
  for (const NamedWorld& world : namedWorlds()) {
    if (world.large) continue;
    Walk walk(world);
    const std::vector<std::string> arguments = walk.arguments();
    for (const Segue& segue : segues()) {
      for (const std::string& argument : arguments) walk.visit(segue, argument);
    }
    for (const Tab& tab : tabs()) walk.visit(tab.root, "");
    for (uint64_t seed = 1; seed <= reports; ++seed) walk.visit(*segueNamed("goToWeeklySummary"), "", seed);
  }
}

}  // namespace
}  // namespace backbeat
