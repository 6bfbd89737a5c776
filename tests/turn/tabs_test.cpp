#include "shell/session.h"
#include "support/views.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// Opens every entry of a tab's root and goes back; tells the titles of what opened.
std::vector<std::string> titlesBehind(Session& session, TabNumber tab) {
  session.press({}, "tabs", {"", std::to_string(tab)});
  const std::vector<Row> entries = rowsOf(session.shown().view);
  std::vector<std::string> titles;
  for (const Row& entry : entries) {
    if (!entry.opens) continue;
    session.press({}, std::to_string(session.shown().key), {entry.id, ""});
    titles.push_back(session.shown().stack.size() == 2 ? session.shown().view.title : entry.id + " opened nothing");
    session.press({}, "nav", {"back", ""});
  }
  return titles;
}

TEST(Tabs, EveryEntryOfLifeAndBusinessOpensItsScreen) {
  World world;
  world.state.promptToEnterName = 1;
  world.settle();
  Session session(world.store, world.platform, 7, {});
  using Titles = std::vector<std::string>;
  EXPECT_EQ(titlesBehind(session, lifeTab), (Titles{"Traits", "My Studio", "Job Board", "FOOD", "FASHION", "HEALTH",
                                                    "HOME", "TRANSPORTATION", "Energy", "Expenses"}));
  EXPECT_EQ(titlesBehind(session, businessTab), (Titles{"Expenses", "Income Statement", "Net Worth"}));
  EXPECT_EQ(session.game().state.totalEnergyAvailable, 95) << "the visit to the job board";
  EXPECT_TRUE(differencesFromStore(session.game().state, world.store).empty());
}

}  // namespace
}  // namespace backbeat
