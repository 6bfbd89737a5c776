// Every figure of every screen is what it says it is, in a world where it can be nothing else by chance.
#include "play/figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <set>

#include "core/memory_store.h"
#include "core/money.h"
#include "play/worlds.h"
#include "shell/free_shop.h"
#include "shell/native/view_printer.h"
#include "shell/session.h"

namespace backbeat {
namespace {

void furnish(GameState& state) {
  OwnValues own;
  giveOwnScalars(state, own);
  state.weekNumber = 36;
  state.yearNumber = 2049;
  state.weekNumberForTracking = 26 * 52 + 36;
  for (const FiguresOf* room = FiguresOf::first(); room; room = room->next) {
    if (room->furnish) room->furnish(state, own);
  }
}

std::vector<ScreenFigures> allScreens() {
  std::vector<ScreenFigures> screens;
  for (const FiguresOf* room = FiguresOf::first(); room; room = room->next) {
    if (!room->screens) continue;
    for (ScreenFigures& screen : room->screens()) screens.push_back(std::move(screen));
  }
  return screens;
}

/// The world as one launch of the game finds it.
struct Launched {
  explicit Launched(const MemoryStore& world) : store(world) {}

  MemoryStore store;
  FreeShop platform;
  Session session{store, platform, 11, Date{1'940'000'000}};
  Game& game = session.game();
};

const Segue* screenNamed(std::string_view name) {
  for (const Tab& tab : tabs()) {
    if (tab.root.name == name) return &tab.root;
  }
  return segueNamed(name);
}

bool hasDigit(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

/// What has to be in the table.
bool tellsSomething(const Standing& standing) {
  return hasDigit(standing.says) || !standing.leadsTo.empty() || standing.where.ends_with(": badge");
}

bool standsForNothing(const ScreenFigures& screen, const std::string& where) {
  return std::any_of(screen.noFigures.begin(), screen.noFigures.end(), [&](const std::string& place) {
    return place.ends_with('*') ? where.starts_with(place.substr(0, place.size() - 1)) : where == place;
  });
}

std::string wayOf(Screen& screen, const std::string& press) {
  if (press.empty()) return "";
  const Outcome outcome = screen.act({press, ""});
  if (!outcome.go) return "nowhere";
  return outcome.go->segue + (outcome.go->argument.empty() ? "" : " " + outcome.go->argument);
}

void expectStanding(const Standings& found, const Standing& expected, Screen& screen) {
  const auto at =
      std::find_if(found.begin(), found.end(), [&](const Standing& one) { return one.where == expected.where; });
  if (at == found.end()) {
    ADD_FAILURE() << "nothing stands at \"" << expected.where << "\"";
    return;
  }
  EXPECT_EQ(at->says, expected.says) << expected.where;
  EXPECT_EQ(wayOf(screen, at->leadsTo), expected.leadsTo) << expected.where;
}

void prove(const MemoryStore& world, const ScreenFigures& figures) {
  SCOPED_TRACE(std::string(figures.segue) + " " + figures.argument);
  const Segue* segue = screenNamed(figures.segue);
  ASSERT_NE(segue, nullptr);
  Launched own(world);
  Launched twin(world);
  if (figures.before) {
    figures.before(own.game);
    figures.before(twin.game);
  }
  const std::unique_ptr<Screen> screen = segue->make(own.game, figures.argument);
  screen->open();
  screen->appear();
  for (const Action& press : figures.presses) screen->act(press);
  const Standings found = standingsOn(screen->view());
  std::set<std::string> named;
  for (const Standing& expected : numbered(figures.figures(twin.game))) {
    named.insert(expected.where);
    expectStanding(found, expected, *screen);
  }
  for (const Standing& standing : found) {
    if (!tellsSomething(standing) || standsForNothing(figures, standing.where)) continue;
    EXPECT_TRUE(named.contains(standing.where))
        << "nobody says what stands at \"" << standing.where << "\": " << standing.says << " " << standing.leadsTo;
  }
}

MemoryStore furnishedWorld() {
  MemoryStore store;
  settleInto(store, {"of figures", furnish});
  return store;
}

TEST(Figures, EachStandsForWhatItSays) {
  const MemoryStore world = furnishedWorld();
  std::set<std::string_view> proven;
  for (const ScreenFigures& screen : allScreens()) {
    proven.insert(screen.segue);
    prove(world, screen);
  }
  for (const Tab& tab : tabs()) EXPECT_TRUE(proven.contains(tab.root.name)) << tab.root.name;
  for (const Segue& segue : segues()) EXPECT_TRUE(proven.contains(segue.name)) << segue.name;
}

TEST(Figures, NoTwoInTheirWorldAreEqual) {
  GameState state;
  furnish(state);
  EXPECT_EQ(sharedNumbers(state), std::vector<std::string>());
}

TEST(Figures, TheHeaderTellsCashEnergyAndDate) {
  const MemoryStore world = furnishedWorld();
  Launched launched(world);
  const GameState& state = launched.game.state;
  const Header header = launched.session.shown().header;
  EXPECT_EQ(launched.session.shown().badges[homeTab], "!");
  launched.game.launch.contractOfferState = 1;
  EXPECT_EQ(launched.session.shown().badges[homeTab], "!");
  EXPECT_EQ(header.cash, currency(state.totalCashAvailable));
  EXPECT_EQ(header.energy, std::to_string(state.totalEnergyAvailable) + " / " + std::to_string(state.totalEnergyMax));
  EXPECT_EQ(header.energyShare,
            static_cast<double>(state.totalEnergyAvailable) / static_cast<double>(state.totalEnergyMax));
  EXPECT_EQ(header.date, "Week 36, 2049");
}

int64_t signals = 0;

std::string headerOf(const Session& session) {
  const Header header = session.shown().header;
  return header.cash + ", " + header.energy + ", " + header.date;
}

/// One press, and the answers that it asks for.
void pressAndAnswer(Screen& screen, const Action& action) {
  for (const Alert& alert : screen.act(action).alerts) {
    for (const AlertButton& button : alert.buttons) {
      if (!button.action.id.empty()) screen.act(button.action);
    }
  }
}

/// Presses everything on a screen; what moves a figure of the header has to tell the rest of the game.
void expectSignals(const MemoryStore& world, const ScreenFigures& figures) {
  Launched own(world);
  if (figures.before) figures.before(own.game);
  own.game.leaderboardPass = [](Game&) { ++signals; };
  const Segue& segue = *screenNamed(figures.segue);
  const std::unique_ptr<Screen> screen = segue.make(own.game, figures.argument);
  screen->open();
  screen->appear();
  Shown shown = own.session.shown();
  shown.view = screen->view();
  for (const Pressable& pressable : printScreen(own.session.navigator(), shown, false).pressables) {
    const std::string before = headerOf(own.session);
    signals = 0;
    pressAndAnswer(*screen, pressable.action);
    const std::string after = headerOf(own.session);
    EXPECT_TRUE(after == before || signals > 0)
        << segue.screen << " " << pressable.action.id << " moves the header and signals nothing: " << after;
  }
}

TEST(Figures, WhatMovesTheHeaderSignalsIt) {
  const MemoryStore world = furnishedWorld();
  for (const ScreenFigures& screen : allScreens()) expectSignals(world, screen);
}

}  // namespace
}  // namespace backbeat
