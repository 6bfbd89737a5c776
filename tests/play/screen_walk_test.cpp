// Every screen of the game, opened in careers of very different kinds.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/icons.h"
#include "core/memory_store.h"
#include "play/glass.h"
#include "play/worlds.h"
#include "shell/native/view_printer.h"
#include "shell/registry.h"
#include "shell/session.h"
#include "shell/shown_json.h"
#include "shell/trace.h"

namespace backbeat {
namespace {

/// What screens offered, and what of it did anything, as "Screen action".
struct Presses {
  std::set<std::string> offered;
  std::set<std::string> answered;

  std::vector<std::string> unanswered() const {
    std::vector<std::string> names;
    std::set_difference(offered.begin(), offered.end(), answered.begin(), answered.end(), std::back_inserter(names));
    return names;
  }
};

bool leadsSomewhere(const Go& go) {
  if (go.segue.empty() || segueNamed(go.segue)) return true;
  const std::array<std::string_view, 4> reserved = {startOverSegue, exportCareerSegue, importCareerSegue, restoreSegue};
  return std::find(reserved.begin(), reserved.end(), go.segue) != reserved.end();
}

/// The values that a press of it may carry.
std::vector<std::string> valuesFor(const Pressable& pressable) {
  if (pressable.takes == Pressable::Takes::text) return {"Something Else"};
  if (pressable.takes != Pressable::Takes::option) return {pressable.action.value};
  std::vector<std::string> options;
  for (int64_t option = 0; option < pressable.options; ++option) options.push_back(std::to_string(option));
  return options;
}

/// Presses everything that the screen offers at first and goes on offering, the one after the other.
void pressEverything(Session& session, Screen& screen, std::string_view name, Presses& presses) {
  const auto shown = [&] {
    Shown now = session.shown();
    now.view = screen.view();
    now.alert.reset();
    return now;
  };
  const auto looks = [&] {
    return shownAsJson(session.navigator(), shown()) + hashText(stateHash(session.game().state));
  };
  std::string before = looks();
  for (const Pressable& pressable : printScreen(session.navigator(), shown(), false).pressables) {
    const std::string what = std::string(name) + " " + std::string(pressable.action.verb());
    presses.offered.insert(what);
    for (const std::string& value : valuesFor(pressable)) {
      if (presses.answered.contains(what) && value != pressable.action.value) continue;
      const Outcome outcome = screen.act({pressable.action.id, value});
      EXPECT_TRUE(!outcome.go || leadsSomewhere(*outcome.go)) << what << " leads to " << outcome.go->segue;
      const std::string after = looks();
      if (outcome.go || !outcome.alerts.empty() || outcome.feedback != Feedback::none || after != before) {
        presses.answered.insert(what);
      }
      before = after;
    }
  }
}

/// Opens one screen as the navigator would, looks at it, and presses what it offers.
void visit(const NamedWorld& world, const Segue& segue, const std::string& argument, Presses& presses) {
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
  if (!world.large) pressEverything(session, *screen, segue.screen, presses);
  session.game().saveFile.commit();
  EXPECT_EQ(differencesFromStore(session.game().state, store), std::vector<std::string>());
}

/// Offered though they change nothing that shows, on purpose.
const std::set<std::string> harmless = {};

TEST(ScreenWalk, EveryScreenDescribesItselfAndAnswersWhatItOffersInEveryCareer) {
  const std::string song = std::to_string(firstWorldSong);
  Presses presses;
  for (const NamedWorld& world : namedWorlds()) {
    for (const Segue& segue : segues()) {
      for (const std::string& argument :
           {std::string(), song, std::string("23"), std::string("-1"), std::string("no:id")}) {
        visit(world, segue, argument, presses);
      }
    }
    for (const Tab& tab : tabs()) visit(world, tab.root, "", presses);
  }
  for (const std::string& what : presses.unanswered()) {
    EXPECT_TRUE(harmless.contains(what)) << what << " is offered and does nothing";
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
