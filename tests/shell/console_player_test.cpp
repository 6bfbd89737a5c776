#include "shell/native/console_player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "core/memory_store.h"
#include "play/worlds.h"
#include "shell/native/terminal_text.h"

namespace backbeat {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// What the console says to a script of inputs, in a career that begins new.
struct ConsoleRun {
  MemoryStore store;
  FreeShop shop;
  TraceRecorder career{store, shop};
  std::string said;

  void type(const std::string& script, bool colour = false) {
    if (!launched_) career.play(launchEvent(0, 5));
    launched_ = true;
    std::istringstream in(script);
    std::ostringstream out;
    ConsolePlayer(career, store, shop, linesFrom(in), out, colour, [] { return int64_t{1'672'660'800'000}; }).run();
    said = out.str();
  }
  const GameState& state() { return career.session().game().state; }
  /// The number that stands before the thing with that id now.
  std::string number(const std::string& id) {
    const Shown shown = career.session().shown();
    const auto offered = printScreen(career.session().navigator(), shown, false).pressables;
    const auto found = std::find_if(offered.begin(), offered.end(), [&](const auto& p) { return p.action.id == id; });
    EXPECT_NE(found, offered.end()) << id;
    return std::to_string(found - offered.begin() + 1);
  }
  void beginASong() {
    type("1 Mara\n3\nmusic\n");
    type(number("createSongButton") + "\n");
    ASSERT_EQ(career.session().shown().screen, "CreateASongViewController");
  }

 private:
  bool launched_ = false;
};

TEST(ConsolePlayer, PlaysAWeekFromTheNameOn) {
  ConsoleRun run;
  run.type("");
  EXPECT_THAT(run.said, HasSubstr("or help.")) << "the first screen says where help is";
  run.type("1 Zoë Falk\n3\nhome\nEND\n");
  EXPECT_EQ(run.state().myArtistsName, "Zoë Falk");
  EXPECT_EQ(run.state().weekNumberForTracking, 2);
  EXPECT_THAT(run.said, HasSubstr("Weekly report"));
  EXPECT_THAT(run.said, HasSubstr("See you."));
  EXPECT_THAT(run.said, Not(HasSubstr("\x1b")));
}

TEST(ConsolePlayer, FillsTextsOptionsAndSwitchesAndTellsWhatANumberWants) {
  ConsoleRun run;
  run.beginASong();
  const std::string title = run.number("title");
  const std::string writing = run.number("writing");
  const std::string isExplicit = run.number("explicit");
  run.type(title + "\n  Paper Boats\r\n");
  EXPECT_THAT(run.said, HasSubstr("\"Paper Boats\""));
  run.type(title + "\n\n");
  EXPECT_THAT(run.said, HasSubstr("(Name your song)")) << "an empty line empties it";
  run.type(title);
  EXPECT_THAT(run.said, HasSubstr("See you.")) << "the input may end there";
  run.type(writing + "\n" + writing + " 9\n" + writing + " 0\n" + writing + " x\n");
  EXPECT_THAT(run.said, HasSubstr("1 to 6"));
  EXPECT_THAT(run.said, Not(HasSubstr("2 ✓ Ghost Writer")));
  run.type(title + " Midnight  Rivers\n" + writing + " 2\n" + isExplicit + " on\n");
  EXPECT_THAT(run.said, HasSubstr("\"Midnight  Rivers\""));
  EXPECT_THAT(run.said, HasSubstr("2 ✓ Ghost Writer"));
  EXPECT_THAT(run.said, HasSubstr("(on)  Explicit"));
  EXPECT_THAT(run.said, HasSubstr("$1,125 ✗"));
  run.type(isExplicit + "\n");
  EXPECT_THAT(run.said, HasSubstr("(off) Explicit"));
}

TEST(ConsolePlayer, AnswersNonsenseWithOneLineAndChangesNothing) {
  ConsoleRun run;
  run.type("1 Mara\n3\n");
  const uint64_t before = stateHash(run.state());
  run.type("dance\n0\n-4\n99\n99999999999999999999\nback\nmore\n\xFF\x1b[2J\n\nhelp\ninfo\nagain\nquit\nhome\n");
  EXPECT_EQ(stateHash(run.state()), before);
  EXPECT_THAT(run.said, HasSubstr("\"dance\" means nothing here"));
  EXPECT_THAT(run.said, HasSubstr("The numbers here go from 1 to"));
  EXPECT_THAT(run.said, HasSubstr("There are no more rows here."));
  EXPECT_THAT(run.said, Not(HasSubstr("\x1b")));
  EXPECT_EQ(run.career.session().shown().tab, size_t{musicTab}) << "what stands behind quit is not read";
}

TEST(ConsolePlayer, AlertsHaveToBeAnswered) {
  ConsoleRun run;
  run.beginASong();
  run.type(run.number("createSongButton") + "\n");  // refused: it has no title
  EXPECT_THAT(run.said, HasSubstr("[1] 👍"));
  run.type("home\nend\n2\n");
  EXPECT_TRUE(run.career.session().shown().alert);
  EXPECT_THAT(run.said, HasSubstr("Answer the message first"));
  run.type("1\n");
  EXPECT_FALSE(run.career.session().shown().alert);
}

TEST(ConsolePlayer, AFailedSaveIsToldUntilItWorksAgain) {
  ConsoleRun run;
  run.type("1 Mara\n");
  run.store.failNext(1);
  run.type("3\n");
  EXPECT_THAT(run.said, HasSubstr("Nothing could be saved"));
  run.type("home\n");
  run.type("again\n");
  EXPECT_THAT(run.said, Not(HasSubstr("Nothing could be saved")));
  EXPECT_EQ(differencesFromStore(run.state(), run.store), std::vector<std::string>());
}

TEST(ConsolePlayer, ANoticeIsToldOnce) {
  ConsoleRun run;
  settleInto(run.store, namedWorld("rich"));
  run.store.rows[{"saveAllChirpList", 0}] = Bytes("no list");
  run.type("again\nmusic\n");
  const size_t told = run.said.find("A part of the save was damaged");
  EXPECT_NE(told, std::string::npos);
  EXPECT_EQ(run.said.find("A part of the save was damaged", told + 1), std::string::npos);
}

TEST(ConsolePlayer, LongListsArePaged) {
  ConsoleRun run;
  NamedWorld many = {"many songs", [](GameState& state) {
                       state.promptToEnterName = 1;
                       for (int64_t i = 0; i < 150; ++i) {
                         Song song;
                         song.songId = 12 + 3 * i;
                         song.title = "Song No. " + std::to_string(i + 1);
                         song.isReleased = true;
                         song.features = {""};
                         state.saveAllSongList.append(song);
                       }
                     }};
  settleInto(run.store, many);
  run.type("music\n");
  EXPECT_THAT(run.said, HasSubstr("1 to 60 of 150"));
  run.type("more\nmore\nmore\n");
  EXPECT_THAT(run.said, HasSubstr("121 to 150 of 150"));
  EXPECT_THAT(run.said, HasSubstr("There are no more rows here."));
  run.type("earlier\n");
  EXPECT_THAT(run.said, HasSubstr("61 to 120 of 150"));
}

TEST(TerminalText, CountsColumnsAndNeverSteersTheTerminal) {
  EXPECT_EQ(columnsOf("abc日本👍é"), 10u);
  EXPECT_EQ(oneLine("a\x1b[2Jb\nc\u202Ed", 20), "a [2Jb cd");
  EXPECT_EQ(oneLine("日本語の歌", 6), "日本…");
  EXPECT_EQ(columnsOf(oneLine(std::string(100'000, 'x'), 60)), 60u);
  for (const std::string& line : wrapped("one two\n" + std::string(200, 'y') + " 日本語の歌です", 20)) {
    EXPECT_LE(columnsOf(line), 20u) << line;
  }
  EXPECT_EQ(wrapped("aa bb cc", 5), (std::vector<std::string>{"aa bb", "cc"}));
  EXPECT_EQ(spark({0, 7, 3.5}, 60), "▁█▅");
  EXPECT_EQ(bar(7, 3), "███");
}

}  // namespace
}  // namespace backbeat
