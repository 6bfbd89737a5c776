#include "core/menu.h"

#include <gtest/gtest.h>

#include "core/room.h"
#include "support/views.h"
#include "support/world.h"

namespace backbeat {
namespace {

constexpr MenuLine ownMenu[] = {
    {.tab = lifeTab, .section = "Work", .order = 210, .icon = "car", .title = "Drive", .segue = "goToDrive"},
    {.tab = lifeTab,
     .section = "Love",
     .order = 120,
     .icon = "heart",
     .title = "Alone",
     .segue = "goToMeet",
     .id = "love",
     .shown = [](const Game& game) { return game.state.matchId == 0; }},
    {.tab = lifeTab,
     .section = "Love",
     .order = 120,
     .icon = "heart",
     .title = "Together",
     .subtitle = "Quiet",
     .segue = "goToPartner",
     .argument = "7",
     .id = "love",
     .shown = [](const Game& game) { return game.state.matchId == 7; },
     .describe = [](const Game& game, Row& row) { row.value = std::to_string(game.state.totalFans); },
     .price =
         [](const GameState& state) {
           return Price{state.childEnergyCost, 0};
         },
     .badge = [](const Game& game) { return game.state.onTour >= 1 ? std::string_view("!") : ""; }},
};

constexpr MenuLine laterMenu[] = {
    {.tab = lifeTab, .section = "Love", .order = 110, .icon = "star", .title = "Dream", .segue = "goToDream"},
    {.tab = homeTab, .section = "More", .order = 110, .icon = "star", .title = "Elsewhere", .segue = "goToElsewhere"},
};

void addOwnNeeds(const Game& game, std::vector<Need>& needs) {
  if (game.state.onTour < 1) return;
  needs.push_back({.priority = 100, .title = "Rest", .segue = "goToRest"});
  needs.push_back({.priority = 200, .title = "Album 3", .badge = "3", .segue = "goToAlbum", .argument = "3"});
}

void addLaterNeeds(const Game&, std::vector<Need>& needs) {
  needs.push_back({.priority = 100, .title = "Listen", .segue = "goToListen"});
}

const Room ownRoom = {.segues = {}, .menu = ownMenu, .addNeeds = addOwnNeeds};
const Room laterRoom = {.segues = {}, .menu = laterMenu, .addNeeds = addLaterNeeds};
constexpr const Room* twoRooms[] = {&ownRoom, &laterRoom};

struct MenuTest : ::testing::Test {
  MenuTest() { world.game.rooms = twoRooms; }

  std::string way(const Outcome& outcome) const {
    return outcome.go ? outcome.go->segue + "(" + outcome.go->argument + ")" : "";
  }

  World world;
};

TEST_F(MenuTest, LinesOfAllRoomsStandByTheirOrderUnderTheirSections) {
  View view;
  addMenu(view, world.game, lifeTab);
  ASSERT_EQ(view.blocks.size(), 4u);
  EXPECT_EQ(std::get<Heading>(view.blocks[0]).text, "Love");
  const auto& love = std::get<Rows>(view.blocks[1]).items;
  ASSERT_EQ(love.size(), 2u);
  EXPECT_EQ(love[0].title, "Dream");
  EXPECT_EQ(love[0].id, "goToDream");
  EXPECT_EQ(love[1].title, "Alone");
  EXPECT_EQ(std::get<Heading>(view.blocks[2]).text, "Work");
  EXPECT_EQ(std::get<Rows>(view.blocks[3]).items.at(0).title, "Drive");
  View empty;
  addMenu(empty, world.game, socialTab);
  EXPECT_TRUE(empty.blocks.empty());
}

TEST_F(MenuTest, ALineFollowsTheStateAndSoDoesItsPress) {
  EXPECT_EQ(way(followMenu(world.game, lifeTab, {"love", ""})), "goToMeet()");
  EXPECT_EQ(way(followMenu(world.game, homeTab, {"love", ""})), "") << "the line of another tab";
  EXPECT_EQ(menuBadge(world.game, lifeTab), "");
  world.state.matchId = 7;
  world.state.totalFans = 41;
  world.state.childEnergyCost = 9;
  world.state.onTour = 1;
  View view;
  addMenu(view, world.game, lifeTab);
  const Row row = rowTitled(view, "Together");
  EXPECT_EQ(row.subtitle, "Quiet");
  EXPECT_EQ(row.value, "41");
  EXPECT_EQ(row.price, (Price{9, 0}));
  EXPECT_EQ(row.badge, "!");
  EXPECT_TRUE(row.opens);
  EXPECT_EQ(rowTitled(view, "Alone").title, "");
  EXPECT_EQ(way(followMenu(world.game, lifeTab, {"love", ""})), "goToPartner(7)");
  EXPECT_EQ(menuBadge(world.game, lifeTab), "!");
}

TEST_F(MenuTest, WhatWaitsStandsByUrgency) {
  EXPECT_EQ(way(followNeed(world.game, {"goToAlbum:3", ""})), "");
  EXPECT_EQ(needsBadge(world.game), "");
  world.state.onTour = 1;
  View view;
  listNeeds(view, world.game);
  const std::vector<Row> rows = rowsOf(view);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].title, "Album 3");
  EXPECT_EQ(rows[1].title, "Rest");
  EXPECT_EQ(rows[2].title, "Listen");
  EXPECT_EQ(way(followNeed(world.game, {rows[0].id, ""})), "goToAlbum(3)");
  EXPECT_EQ(way(followNeed(world.game, {rows[2].id, ""})), "goToListen()");
  EXPECT_EQ(needsBadge(world.game), "3");
}

}  // namespace
}  // namespace backbeat
