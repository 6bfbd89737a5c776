// Every screen of the game, opened in careers of very different kinds.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/icons.h"
#include "core/memory_store.h"
#include "play/glass.h"
#include "play/worlds.h"
#include "shell/registry.h"
#include "shell/session.h"

namespace backbeat {
namespace {

/// Opens one screen as the navigator would, looks at it, and closes it.
void visit(const NamedWorld& world, const Segue& segue, const std::string& argument) {
  SCOPED_TRACE(std::string(world.name) + ", " + std::string(segue.name) + " \"" + argument + "\"");
  MemoryStore store;
  settleInto(store, world);
  QuietPlatform platform;
  Session session(store, platform, 7, Date{1'672'660'800});
  const std::unique_ptr<Screen> screen = segue.make(session.game(), argument);
  screen->open();
  screen->appear();
  EXPECT_EQ(glassFault(session,
                       [&] {
                         Shown shown = session.shown();
                         shown.screen = segue.screen;
                         shown.view = screen->view();
                         return shown;
                       }),
            "");
  EXPECT_FALSE(screen->view().title.empty());
  screen->act({"no such thing", "5"});
  screen->close();
  session.game().saveFile.commit();
  EXPECT_EQ(differencesFromStore(session.game().state, store), std::vector<std::string>());
}

TEST(ScreenWalk, EveryScreenDescribesItselfInEveryCareer) {
  const std::string song = std::to_string(firstWorldSong);
  for (const NamedWorld& world : namedWorlds()) {
    for (const Segue& segue : segues()) {
      for (const std::string& argument : {std::string(), song, std::string("-1"), std::string("no:id")}) {
        visit(world, segue, argument);
      }
    }
    for (const Tab& tab : tabs()) visit(world, tab.root, "");
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
