#include "shell/native/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "play/worlds.h"
#include "shell/native/sqlite_store.h"
#include "support/program.h"

namespace backbeat {
namespace {

using ::testing::HasSubstr;

CommandLine read(const std::vector<const char*>& words) { return readCommandLine(words, "/home/mara/career"); }

TEST(CommandLine, TakesWhatMakesSense) {
  const CommandLine play = read({"play", "--seed", "18446744073709551615", "--trace", "t", "--save", "s"});
  EXPECT_EQ(play.problem, "");
  EXPECT_EQ(play.seed, UINT64_MAX);
  EXPECT_EQ(play.trace, "t");
  EXPECT_EQ(play.save, "s");
  EXPECT_EQ(read({"info"}).save, "/home/mara/career");
  EXPECT_EQ(read({"replay", "year.trace"}).trace, "year.trace");
  const CommandLine sweep = read({"simulate", "--json", "--careers", "7", "--profile", "--strategy", "idle"});
  EXPECT_EQ(sweep.problem, "");
  EXPECT_TRUE(sweep.simulate.json && sweep.simulate.profile);
  EXPECT_EQ(sweep.simulate.careers, 7);
  EXPECT_EQ(sweep.simulate.strategy, "idle");
  EXPECT_EQ(defaultSaveFile("/data", "/home/mara"), "/data/backbeat/career.backbeat");
  EXPECT_EQ(defaultSaveFile("relative", "/home/mara"), "/home/mara/.local/share/backbeat/career.backbeat");
}

TEST(CommandLine, RefusesTheRestWithTheUsage) {
  const std::vector<std::vector<const char*>> senseless = {
      {},
      {"dance"},
      {"play", "now"},
      {"play", "--seed"},
      {"play", "--seed", "-1"},
      {"play", "--seed", "5x"},
      {"play", "--seed", "18446744073709551616"},
      {"play", "--save", ""},
      {"play", "--tempo", "3"},
      {"info", "--seed", "5"},
      {"replay"},
      {"replay", "a", "b"},
      {"replay", "--save", "s", "a"},
      {"simulate", "--careers", "0"},
      {"simulate", "--years", "1001"},
      {"simulate", "--strategy", "lucky"},
      {"simulate", "--save", "s"},
      {"simulate", "--csv"},
      {"play", "--json"},
  };
  for (const auto& words : senseless) {
    EXPECT_THAT(read(words).problem, HasSubstr("Usage: backbeat")) << ::testing::PrintToString(words);
  }
}

TEST(CommandLine, TheProgramEndsWithTheRightCode) {
  EXPECT_EQ(runProgram({"--version"}).exitCode, 0);
  for (const char* command : {"play", "replay", "info", "simulate"}) {
    const ProgramRun help = runProgram({command, "--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, HasSubstr(std::string("Usage: backbeat ") + command));
  }
  EXPECT_EQ(runProgram({"play", "--seed", "x"}).exitCode, 2);
  const std::string file = freshFile("not_there");
  EXPECT_EQ(runProgram({"info", "--save", file}).exitCode, 1);
  EXPECT_EQ(contentOf(file), "") << "asking for a save begins none";
  EXPECT_EQ(runProgram({"replay", file}).exitCode, 1);
  writeFile(file, "this is no save and no trace");
  EXPECT_EQ(runProgram({"play", "--save", file}).exitCode, 1);
  EXPECT_EQ(contentOf(file), "this is no save and no trace");
  const ProgramRun replay = runProgram({"replay", file});
  EXPECT_EQ(replay.exitCode, 1);
  EXPECT_THAT(replay.output, HasSubstr("line 1"));
}

TEST(CommandLine, ACareerGoesOnWhereItWasLeftAndInfoTellsOfIt) {
  const std::string save = freshFile("career");
  EXPECT_EQ(runProgram({"play", "--save", save}, "1 Zoë Falk\n2\nend\n").exitCode, 0);
  EXPECT_EQ(runProgram({"play", "--save", save}, "").exitCode, 0);
  const std::string before = contentOf(save);
  const ProgramRun info = runProgram({"info", "--save", save});
  EXPECT_EQ(info.exitCode, 0);
  EXPECT_THAT(info.output, HasSubstr("Zoë Falk"));
  EXPECT_THAT(info.output, HasSubstr("Week 2, 2023"));
  EXPECT_THAT(info.output, HasSubstr("saveAllWeeklyLineItems"));
  EXPECT_EQ(contentOf(save), before);

  const std::string trace = freshFile("goes_on.trace");
  EXPECT_THAT(runProgram({"play", "--save", save, "--trace", trace}).output, HasSubstr("cannot be replayed"));
  const ProgramRun replay = runProgram({"replay", trace});
  EXPECT_EQ(replay.exitCode, 1);
  EXPECT_THAT(replay.output, HasSubstr("a career that the trace does not hold"));
}

TEST(CommandLine, NothingIsWrittenOverByMistake) {
  const std::string save = freshFile("kept");
  ASSERT_EQ(runProgram({"play", "--save", save}, "1 Zoë Falk\nend\n").exitCode, 0);
  const std::string career = contentOf(save);
  const std::string link = freshFile("kept_link");
  const std::string pipe = freshFile("kept_pipe");
  const std::string text = freshFile("kept_text");
  ASSERT_EQ(symlink(save.c_str(), link.c_str()), 0);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  writeFile(text, "notes of somebody");
  const std::vector<std::vector<std::string>> writers = {{"export", "", "--save", save},
                                                         {"play", "--save", save, "--trace", ""},
                                                         {"simulate", "--careers", "1", "--years", "1", "--csv", ""},
                                                         {"simulate", "--careers", "1", "--years", "1", "--trace", ""}};
  for (std::vector<std::string> words : writers) {
    const auto target = std::find(words.begin(), words.end(), "");
    for (const std::string& place : {save, link, pipe, text, std::string("/tmp"), std::string("/dev/full")}) {
      *target = place;
      EXPECT_EQ(runProgram(words).exitCode, 1) << words[0] << " to " << place;
    }
    EXPECT_EQ(contentOf(save), career) << words[0];
    EXPECT_EQ(contentOf(text), "notes of somebody") << words[0];
    *target = text;
    words.push_back("--force");
    EXPECT_EQ(runProgram(words).exitCode, 0) << words[0] << " told to";
    EXPECT_NE(contentOf(text), "notes of somebody") << words[0];
    writeFile(text, "notes of somebody");
  }
}

TEST(CommandLine, WhatIsNoFileIsRefusedInASentence) {
  const std::string save = freshFile("none_yet");
  for (const char* source : {"/tmp", "/dev/zero", "/nowhere/at/all"}) {
    for (const char* command : {"import", "replay"}) {
      const ProgramRun run = command == std::string("import") ? runProgram({command, source, "--save", save})
                                                              : runProgram({command, source});
      EXPECT_EQ(run.exitCode, 1) << command << " " << source;
      EXPECT_THAT(run.output, HasSubstr(source));
    }
  }
  EXPECT_FALSE(std::filesystem::exists(save)) << "a failed import begins no save";
  for (const char* place : {":memory:", "file:a?mode=memory", "/tmp"}) {
    const ProgramRun run = runProgram({"play", "--save", place});
    EXPECT_EQ(run.exitCode, 1) << place;
    EXPECT_THAT(run.output, HasSubstr(place));
  }
}

TEST(CommandLine, DamagedListsAreToldAndLeftAloneByInfo) {
  const std::string save = freshFile("damaged");
  {
    const SqliteStore::Opened opened = SqliteStore::open(save);
    ASSERT_TRUE(opened.store);
    settleInto(*opened.store, namedWorlds()[1]);
    ASSERT_TRUE(opened.store->commit(std::vector<Write>{{"saveAllSongList", 0, Bytes("rubbish")}}));
  }
  for (int i = 0; i < 2; ++i) {
    EXPECT_THAT(runProgram({"info", "--save", save}).output,
                HasSubstr("saveAllSongList                       DAMAGED"));
  }
  EXPECT_THAT(runProgram({"play", "--save", save}).output, HasSubstr("was damaged and has been put aside"));
  EXPECT_THAT(runProgram({"info", "--save", save}).output, ::testing::Not(HasSubstr("DAMAGED")));
}

TEST(CommandLine, AnAmountThatOutgrowsItsNumberEndsTheProgramWithOneLine) {
  const std::string save = freshFile("endless");
  {
    const SqliteStore::Opened opened = SqliteStore::open(save);
    ASSERT_TRUE(opened.store);
    settleInto(*opened.store, {"endless", [](GameState& state) {
                                 state.promptToEnterName = 1;
                                 state.weekNumberForTracking = INT64_MAX;
                               }});
  }
  const ProgramRun run = runProgram({"play", "--save", save}, "end\n");
  EXPECT_EQ(run.exitCode, 70);
  EXPECT_THAT(run.output,
              HasSubstr("An amount grew past what the game can count. The save holds the last whole step."));
}

}  // namespace
}  // namespace backbeat
