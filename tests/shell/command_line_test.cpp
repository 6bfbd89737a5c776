#include "shell/native/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "core/career_file.h"
#include "play/worlds.h"
#include "shell/native/last_words.h"
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
  EXPECT_EQ(runProgram({"play", "--save", save}, "1 Zoë Falk\n3\nend\n").exitCode, 0);
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

/// What can stand where a command looks for a file, but for plain ones: each made anew by name.
std::vector<std::string> oddPlaces() {
  const std::string folder = freshFile("odd_places");
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  EXPECT_EQ(symlink("nowhere", (folder + "/dangling").c_str()), 0);
  EXPECT_EQ(symlink("loop", (folder + "/loop").c_str()), 0);
  EXPECT_EQ(mkfifo((folder + "/pipe").c_str(), 0600), 0);
  writeFile(folder + "/text", "notes of somebody");
  writeFile(folder + "/empty", "");
  return {folder,
          folder + "/dangling",
          folder + "/loop",
          folder + "/pipe",
          folder + "/text",
          folder + "/text/below",
          folder + "/empty",
          folder + "/missing",
          folder + "/missing/below",
          folder + "/" + std::string(300, 'n'),
          folder + "/line\nbreak",
          "/dev/null",
          "/dev/zero",
          "/dev/full",
          "/proc/self/mem"};
}

TEST(CommandLine, EveryCommandComesToAnEndWhateverItIsPointedAt) {
  const std::string save = freshFile("pointed");
  ASSERT_EQ(runProgram({"play", "--save", save}, "1 Zoë Falk\nend\n").exitCode, 0);
  const std::string career = contentOf(save);
  const std::vector<std::vector<std::string>> commands = {{"play", "--save", ""},
                                                          {"play", "--save", save, "--trace", ""},
                                                          {"info", "--save", ""},
                                                          {"export", "", "--save", save},
                                                          {"export", "/dev/null", "--save", ""},
                                                          {"import", "", "--save", save},
                                                          {"import", "/nowhere", "--save", ""},
                                                          {"replay", ""},
                                                          {"simulate", "--careers", "1", "--years", "1", "--csv", ""}};
  for (std::vector<std::string> words : commands) {
    const auto target = static_cast<size_t>(std::find(words.begin(), words.end(), "") - words.begin());
    const size_t places = oddPlaces().size();
    for (size_t i = 0; i < places; ++i) {
      words[target] = oddPlaces()[i];
      const ProgramRun run = runProgram(words);
      EXPECT_TRUE(run.exitCode == 0 || run.exitCode == 1) << ::testing::PrintToString(words) << run.output;
      EXPECT_NE(run.output, "") << ::testing::PrintToString(words);
    }
    EXPECT_EQ(contentOf(save), career) << words[0];
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

TEST(LastWords, TellAnAmountThatOutgrowsItsNumberInOneLine) {
  volatile int64_t amount = INT64_MAX;
  EXPECT_EXIT(
      {
        tellLastWords();
        amount = amount + 1;
      },
      testing::ExitedWithCode(outgrown),
      "An amount grew past what the game can count. The save holds the last whole step.");
}

TEST(CommandLine, CopiesAreListedGoneBackToAndDeletedAfterAQuestion) {
  const std::string save = freshFile("copies");
  const auto copies = [&](std::vector<std::string> words) {
    words.insert(words.begin(), "copies");
    words.insert(words.end(), {"--save", save});
    return runProgram(words);
  };
  EXPECT_EQ(copies({}).exitCode, 1) << "there is no save yet";
  const auto liveAs = [&](const std::string& artist) {
    GameState state;
    state.promptToEnterName = 1;
    state.myArtistsName = artist;
    const std::string file = freshFile("other.plist");
    writeFile(file, exportCareer(state));
    return runProgram({"import", file, "--save", save});
  };
  for (const char* artist : {"Ada", "Bo", "Cy", "Di", "Ed", "Flo"}) EXPECT_EQ(liveAs(artist).exitCode, 0);
  EXPECT_THAT(copies({"list"}).output, HasSubstr("1   Before the import   Ed · Week 1, 2023"));
  const ProgramRun refused = liveAs("Gus");
  EXPECT_EQ(refused.exitCode, 1) << "the oldest of five copies is given up only when told to";
  EXPECT_THAT(refused.output, HasSubstr("Ada"));
  EXPECT_EQ(copies({"restore", "3"}).exitCode, 0);
  EXPECT_THAT(runProgram({"info", "--save", save}).output, HasSubstr("Cy"));
  EXPECT_THAT(copies({}).output, HasSubstr("1   Before going back   Flo"));
  EXPECT_EQ(copies({"delete", "1"}).exitCode, 1);
  EXPECT_EQ(copies({"delete", "1", "--force"}).exitCode, 0);
  EXPECT_THAT(copies({}).output, testing::Not(HasSubstr("Flo")));
  EXPECT_EQ(copies({"restore", "17"}).exitCode, 1);
}

}  // namespace
}  // namespace backbeat
