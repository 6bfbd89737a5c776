// Every screen of the game, in careers of very different kinds.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/icons.h"
#include "core/memory_store.h"
#include "play/crawl.h"
#include "play/errand_runner.h"
#include "play/glass.h"
#include "play/worlds.h"
#include "shell/registry.h"
#include "shell/session.h"

namespace backbeat {
namespace {

/// Offered though they change nothing that shows, on purpose.
const std::set<std::string> harmless = {"tab"};

TEST(ScreenWalk, EverythingOnTheWaysFromTheTabsAnswersAndHoldsTogether) {
  const Crawl& crawl = wholeCrawl();
  for (const std::string& fault : crawl.faults) ADD_FAILURE() << fault;
  for (const std::string& what : crawl.offered) {
    const bool answers = crawl.answered.contains(what) || harmless.contains(what.substr(what.find(' ') + 1));
    EXPECT_TRUE(answers) << what << " is offered and does nothing";
  }
}

TEST(ScreenWalk, TheWaysLeadToEveryScreen) {
  for (const Segue& segue : segues()) {
    const std::string name(segue.name);
    const bool reached = wholeCrawl().coverage.segues.contains(name) || errandsRun().coverage.segues.contains(name);
    EXPECT_TRUE(reached) << "no way leads to " << name << " in any world, and no errand either";
  }
}

/// Opens one screen as the navigator would, looks at it, presses what it does not know, and closes it.
void lookAt(Session& session, const Segue& segue, const std::string& argument) {
  const std::unique_ptr<Screen> screen = segue.make(session.game(), argument);
  screen->open();
  screen->appear();
  const auto shown = [&] {
    Shown now = session.shown();
    now.screen = segue.screen;
    now.view = screen->view();
    return now;
  };
  EXPECT_EQ(glassFault(session, shown), "");
  EXPECT_FALSE(screen->view().title.empty());
  screen->act({"no such thing", "5"});
}

TEST(ScreenWalk, AScreenAboutNothingStandsAndSavesWhatItChanges) {
  for (const NamedWorld& world : namedWorlds()) {
    MemoryStore store;
    settleInto(store, world);
    QuietPlatform platform;
    Session session(store, platform, 7, Date{static_cast<double>(timeIn(store)) / 1000});
    for (const Segue& segue : segues()) {
      for (const char* argument : {"", "-1", "987654321", "no:id"}) {
        SCOPED_TRACE(std::string(world.name) + ", " + std::string(segue.name) + " \"" + argument + "\"");
        lookAt(session, segue, argument);
      }
    }
    session.game().saveFile.commit();
    EXPECT_EQ(differencesFromStore(session.game().state, store), std::vector<std::string>()) << world.name;
  }
}

TEST(ScreenWalk, TheTabsHaveDrawingsAndEverySegueItsOwnName) {
  for (const Tab& tab : tabs()) EXPECT_NE(std::find(icons.begin(), icons.end(), tab.icon), icons.end()) << tab.icon;
  std::vector<std::string_view> names;
  for (const Segue& segue : segues()) names.push_back(segue.name);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

}  // namespace
}  // namespace backbeat
