#include "shell/navigator.h"

#include <gtest/gtest.h>

#include "core/memory_store.h"
#include "core/view_find.h"
#include "play/worlds.h"
#include "shell/session.h"

namespace backbeat {
namespace {

/// A launch over a store, played by presses on what is shown.
struct Play {
  explicit Play(MemoryStore& kept) : session(kept, platform, 7, Date{}) {}

  void press(const std::string& id, const std::string& value = "") { to(std::to_string(shown().key), id, value); }
  void to(const std::string& screenKey, const std::string& id, const std::string& value = "") {
    session.press(Date{}, screenKey, {id, value});
  }
  void tab(TabNumber number) { to("tabs", "", std::to_string(number)); }
  void answer(int button) { to("alert", std::to_string(shown().alert->key), std::to_string(button)); }
  void nameTheArtist() {
    press("name", "Mira");
    press("saveButton");
  }
  void endWeek() { to("nav", "endTheWeekButton"); }
  Shown shown() const { return session.shown(); }
  std::string screen() const { return std::string(shown().screen); }
  GameState& state() { return session.game().state; }

  QuietPlatform platform;
  Session session;
};

TEST(Navigator, AFirstStartAsksForTheNameAndNothingElseIsInReach) {
  MemoryStore store;
  Play play(store);
  EXPECT_EQ(play.screen(), "EnterNameViewController");
  EXPECT_EQ(play.shown().tab, musicTab);
  EXPECT_FALSE(play.shown().endWeek);
  play.tab(homeTab);
  play.to("nav", "back");
  play.endWeek();
  EXPECT_EQ(play.screen(), "EnterNameViewController");
  EXPECT_EQ(play.state().weekNumber, 1);
  play.nameTheArtist();
  EXPECT_EQ(play.screen(), "MusicViewController");
  Play again(store);
  EXPECT_EQ(again.screen(), "ViewController") << "later launches begin at home";
}

TEST(Navigator, AtADeskTheRootLiesBesideWhatItLedToAndElseHomeDoes) {
  MemoryStore store;
  Play play(store);
  play.to("nav", "desk", "1");
  EXPECT_FALSE(play.shown().beside) << "the name is asked for over everything";
  play.nameTheArtist();
  ASSERT_TRUE(play.shown().beside);
  EXPECT_EQ(play.shown().beside->screen, "ViewController");
  const int64_t music = play.shown().key;
  play.press("createSongButton");
  EXPECT_EQ(play.shown().beside->key, music);
  EXPECT_EQ(play.shown().beside->screen, "MusicViewController");
  play.tab(homeTab);
  EXPECT_FALSE(play.shown().beside);
  play.endWeek();
  EXPECT_FALSE(play.shown().beside) << "under the report";
  play.tab(musicTab);
  play.to("nav", "desk", "0");
  EXPECT_FALSE(play.shown().beside);
}

TEST(Navigator, ATabIsToldAheadUnderItsKeyAndTheLifeGoesOnAsIfNobodyHadAsked) {
  MemoryStore store, otherStore;
  Play play(store), unasked(otherStore);
  const Navigator& navigator = play.session.navigator();
  play.nameTheArtist();
  EXPECT_FALSE(navigator.ahead(musicTab)) << "it is open";
  EXPECT_FALSE(navigator.ahead(homeTab)) << "every launch opens it";
  EXPECT_FALSE(navigator.ahead(tabCount));
  const auto life = navigator.ahead(lifeTab);
  const auto social = navigator.ahead(socialTab);
  ASSERT_TRUE(life && social);
  play.press("goToBillboard");
  for (const auto& [tab, told] : {std::pair(socialTab, *social), std::pair(lifeTab, *life)}) {
    play.tab(tab);
    EXPECT_EQ(play.shown().key, told.key);
    EXPECT_EQ(play.shown().view.title, told.view.title);
    EXPECT_FALSE(navigator.ahead(tab));
  }
  play.endWeek();

  unasked.nameTheArtist();
  unasked.press("goToBillboard");
  unasked.tab(socialTab);
  unasked.tab(lifeTab);
  unasked.endWeek();
  EXPECT_EQ(play.shown().stack, unasked.shown().stack);
  EXPECT_EQ(stateHash(play.state()), stateHash(unasked.state())) << "nothing was drawn by lot either";
}

TEST(Navigator, TabsKeepTheirScreensAndOldPressesAreIgnored) {
  MemoryStore store;
  Play play(store);
  play.nameTheArtist();
  const std::string music = std::to_string(play.shown().key);
  play.press("createSongButton");
  EXPECT_EQ(play.screen(), "CreateASongViewController");
  play.to(music, "createSongButton");
  EXPECT_EQ(play.shown().stack.size(), 2u) << "a second tap meant for the screen below";
  EXPECT_EQ(play.state().albumId, 1);
  play.tab(socialTab);
  EXPECT_EQ(play.screen(), "TwitterProfileViewController");
  play.to("tabs", "", "5");
  play.to("tabs", "", "nonsense");
  play.tab(musicTab);
  EXPECT_EQ(play.screen(), "CreateASongViewController");
  play.to("nav", "back");
  EXPECT_EQ(play.screen(), "MusicViewController");
  play.to("nav", "back");
  EXPECT_EQ(play.shown().stack.size(), 1u);
  play.press("goToBillboard");
  play.tab(musicTab);
  EXPECT_EQ(play.screen(), "MusicViewController") << "the tab shown leads to its root";
}

TEST(Navigator, ADoorIsPaidOnceAndStaysShutForWhoCannot) {
  MemoryStore store;
  Play play(store);
  play.nameTheArtist();
  play.tab(lifeTab);
  play.state().totalEnergyAvailable = 9;
  play.press("goToJobBoardButton");
  EXPECT_EQ(play.screen(), "JobBoardViewController");
  EXPECT_EQ(play.state().totalEnergyAvailable, 4);
  play.to("nav", "back");
  play.press("goToJobBoardButton");
  EXPECT_EQ(play.screen(), "DailyLifeViewController");
  EXPECT_EQ(play.shown().feedback, Feedback::energyBounce);
  EXPECT_EQ(play.shown().result, Result::noEnergy);
  EXPECT_EQ(play.state().totalEnergyAvailable, 4);
}

TEST(Navigator, AnAlertIsAnsweredFirst) {
  MemoryStore store;
  Play play(store);
  play.nameTheArtist();
  play.press("createSongButton");
  play.press("createSongButton");
  ASSERT_TRUE(play.shown().alert);
  const int64_t key = play.shown().alert->key;
  play.tab(homeTab);
  play.to("nav", "back");
  play.press("createSongButton");
  EXPECT_EQ(play.screen(), "CreateASongViewController");
  play.to("alert", std::to_string(key + 1), "0");
  play.to("alert", std::to_string(key), "1");
  ASSERT_TRUE(play.shown().alert) << "neither another alert's key nor a button that is not there";
  play.answer(0);
  EXPECT_FALSE(play.shown().alert);
  play.to("alert", std::to_string(key), "0");
  EXPECT_EQ(play.screen(), "CreateASongViewController");
}

TEST(Navigator, TheWeekEndsOnRootsAndClosesWhatStandsOpen) {
  MemoryStore store;
  Play play(store);
  play.nameTheArtist();
  play.press("goToBillboard");
  EXPECT_FALSE(play.shown().endWeek);
  play.endWeek();
  EXPECT_EQ(play.state().weekNumber, 1);
  play.tab(homeTab);
  EXPECT_TRUE(play.shown().endWeek);
  play.state().weekNumber = 30;  // the report of the next week asks for an opinion
  play.endWeek();
  EXPECT_EQ(play.screen(), "WeeklySummaryViewController");
  EXPECT_EQ(play.state().weekNumber, 31);
  ASSERT_TRUE(play.shown().alert);
  play.press("closeButton");
  play.endWeek();
  EXPECT_EQ(play.state().weekNumber, 31);
  play.answer(2);
  EXPECT_EQ(play.state().totalEnergyAvailable, 350) << "the answer reached the screen that asked";
  play.to("nav", "back");
  EXPECT_EQ(play.screen(), "WeeklySummaryViewController");
  play.press("closeButton");
  EXPECT_EQ(play.screen(), "ViewController");
  play.tab(musicTab);
  EXPECT_EQ(play.screen(), "MusicViewController");
}

TEST(Navigator, ARestartBeginsAnewAtTheMusicTab) {
  MemoryStore store;
  Play play(store);
  play.nameTheArtist();
  play.press("createSongButton");
  play.tab(socialTab);
  play.press("goToCreateTwitterMessage");
  play.tab(homeTab);
  play.press("goToSettings");
  play.press("appearance", "2");
  play.press("restartButton");
  ASSERT_TRUE(play.shown().alert);
  EXPECT_EQ(play.shown().alert->alert.buttons[0].label, "Close");
  play.answer(0);
  EXPECT_EQ(play.state().myArtistsName, "Mira");
  play.press("restartButton");
  play.answer(1);
  EXPECT_EQ(play.screen(), "EnterNameViewController");
  EXPECT_EQ(play.shown().tab, musicTab);
  EXPECT_EQ(play.state().myArtistsName, "");
  EXPECT_EQ(play.state().appearance, "light");
  play.nameTheArtist();
  EXPECT_EQ(play.screen(), "MusicViewController");
  EXPECT_EQ(play.shown().stack.size(), 1u);
  play.tab(homeTab);
  EXPECT_EQ(play.screen(), "ViewController");
  EXPECT_TRUE(play.shown().endWeek);
  EXPECT_EQ(rowTitled(play.shown().view, "Standing net").value, "-$50") << "life costs something from the first day";
  play.tab(businessTab);
  EXPECT_EQ(rowTitled(play.shown().view, "Income Statement").subtitle, "After your first week");
  play.tab(socialTab);
  EXPECT_EQ(play.screen(), "TwitterProfileViewController");
  EXPECT_TRUE(differencesFromStore(play.state(), store).empty());
}

TEST(Navigator, ALostContractFreesTheArtistAndSaysSoOnce) {
  MemoryStore store;
  settleInto(store, namedWorld("signed"));
  for (auto& [place, row] : store.rows) {
    if (place.first == "saveAllContractLabelList") row = Bytes("no list");
  }
  Play play(store);
  EXPECT_NE(play.shown().notice.find("saveAllContractLabelList. Your label contract is lost"), std::string::npos);
  EXPECT_EQ(rowWithId(play.shown().view, "labelContract").subtitle, "No offer");
  EXPECT_EQ(play.state().underContract, 0);
  EXPECT_DOUBLE_EQ(play.state().streamingPayRate, 0.001);
  EXPECT_DOUBLE_EQ(play.state().contractFeatureDiscount, 1);
  EXPECT_TRUE(differencesFromStore(play.state(), store).empty());
  EXPECT_EQ(Play(store).shown().notice, "");

  MemoryStore onTour;
  settleInto(onTour, namedWorld("on tour"));
  for (auto& [place, row] : onTour.rows) {
    if (place.first == "saveAllContractLabelList") row = Bytes("no list");
  }
  EXPECT_EQ(Play(onTour).state().underContract, 1) << "the shows that are announced are played";

  MemoryStore whole;
  settleInto(whole, namedWorld("signed"));
  EXPECT_EQ(Play(whole).state().underContract, 1);
}

}  // namespace
}  // namespace backbeat
