// The house keeps its own rules: who may include whom, nothing that plays differently on another platform, tidy texts.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tree/house_rules.h"

namespace backbeat::tree {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool isText(const fs::path& file) {
  for (const char* kind : {".h", ".cpp", ".c", ".ts", ".mjs", ".js", ".css", ".html", ".sh", ".md", ".txt", ""}) {
    if (file.extension() == kind) return true;
  }
  return false;
}

/// Everything people wrote: no build folders, no fetched packages, no hidden folders but CI's.
std::vector<std::string> textsOfTheHouse() {
  const fs::path root = BACKBEAT_SOURCE_DIR;
  std::vector<std::string> paths;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::recursive_directory_iterator(); ++entry) {
    const std::string name = entry->path().filename().string();
    if (entry->is_directory() &&
        (name == "node_modules" || name == "dist" || name == "build" || (name.starts_with(".") && name != ".ci"))) {
      entry.disable_recursion_pending();
    }
    const bool hidden = name.starts_with(".");
    if (entry->is_regular_file() && !hidden && isText(entry->path())) {
      paths.push_back(fs::relative(entry->path(), root).generic_string());
    }
  }
  return paths;
}

TEST(SourceTree, KeepsTheRulesOfTheHouse) {
  int engineFiles = 0;
  for (const std::string& path : textsOfTheHouse()) {
    engineFiles += path.starts_with("src/core/");
    for (const Complaint& complaint : complaintsAbout(path, contentOf(fs::path(BACKBEAT_SOURCE_DIR) / path))) {
      ADD_FAILURE() << path << ":" << complaint.line << ": " << complaint.what;
    }
  }
  EXPECT_GT(engineFiles, 10) << "the walk did not find the engine";
}

struct Sample {
  std::string path;
  std::string text;
};

TEST(SourceTree, SeesEachBrokenRule) {
  const std::string once = "#pragma once\n";
  const std::string reference = std::string("// see Part") + " 2.3\n";
  const std::vector<Sample> broken = {
      {"src/core/a.h", once + "#include \"music/songs.h\"\n"},
      {"src/turn/a.cpp", "#include \"shell/registry.h\"\n"},
      {"src/core/a.h", once + "#include \"a.h\"\n"},
      {"src/turn/a.cpp", "#include \"music/screens/song_rows.h\"\n"},
      {"src/attic/a.cpp", ""},
      {"src/music/a.cpp", "std::normal_distribution<double> d;\n"},
      {"src/music/a.cpp", "std::shuffle(a.begin(), a.end(), g);\n"},
      {"src/music/a.cpp", "auto now = std::chrono::seconds(1);\n"},
      {"src/music/a.cpp", "return time(nullptr);\n"},
      {"src/music/a.cpp", "x = y * pow(2, 0.5);\n"},
      {"src/music/a.cpp", "x = 1 + std::log(y);\n"},
      {"src/music/a.h", once + "std::unordered_set<int> s;\n"},
      {"src/core/records/a.h", once + "size_t n = 0;\n"},
      {"src/turn/a.cpp", "game.state.totalEnergyAvailable -= 5;\n"},
      {"src/wealth/screens/a.cpp", "state->totalCashAvailable = cash;\n"},
      {"src/core/a.cpp", "return rows.at(3);\n"},
      {"src/shell/a.cpp", "int n = std::stoi(text);\n"},
      {"src/shell/a.cpp", "return found->value();\n"},
      {"src/shell/a.cpp", "return {std::istreambuf_iterator<char>(stream), {}};\n"},
      {"src/shell/a.cpp", "auto size = std::filesystem::file_size(path);\n"},
      {"src/shell/a.cpp", "std::filesystem::rename(from, to);\n"},
      {"src/shell/a.h", once + "#define A 1\n"},
      {"src/music/a.cpp", "#ifdef __wasm__\n"},
      {"src/shell/a.h", once + "using namespace std;\n"},
      {"src/shell/a.h", "int a();\n"},
      {"README.md", "one \n"},
      {"src/shell/web/src/a.ts", "\tone\n"},
      {"tests/a_test.cpp", reference},
      {"docs/a.md", std::string("built as spec") + "ified\n"},
      {"tests/a_test.cpp",
       [] {
         std::string lines;
         for (int i = 0; i <= 700; ++i) lines += "\n";
         return lines;
       }()},
  };
  for (const Sample& sample : broken) {
    EXPECT_EQ(complaintsAbout(sample.path, sample.text).size(), 1U) << sample.path << ": " << sample.text;
  }
}

TEST(SourceTree, LeavesHarmlessTextsAlone) {
  const std::string once = "#pragma once\n";
  const std::vector<Sample> harmless = {
      {"src/turn/a.cpp", "#include \"life/dating.h\"\n#include <vector>\n#include \"turn/a.h\"\n"},
      {"src/turn/screens/a.cpp", "#include \"music/screens/song_rows.h\"\n"},
      {"src/shell/a.cpp", "auto now = std::chrono::system_clock::now();\nstd::unordered_map<int, int> m;\n"},
      {"src/music/a.cpp", "// time(nullptr), std::shuffle\nnote(\"std::pow(2, 3) \\\" rand()\");\n"},
      {"src/music/a.cpp",
       "random.shuffle(songs);\ngame.clock.now();\nconst int64_t time = song.time();\nGame(): a(b), clock(time) {}\n"},
      {"src/music/a.cpp", "int64_t count = 1'000'000; /* std::\n time(0) */ char c = '\"';\n"},
      {"src/music/a.cpp", "auto t = R\"x(\" std::random_device )\" )x\"; auto e = u8\"\\\\\";\n"},
      {"src/core/records/a.h", once + "int64_t longest = 0;\n"},
      {"src/turn/weekly_report.cpp", "state.totalCashAvailable += report.total;\n"},
      {"src/turn/a.cpp", "if (state.totalCashAvailable == 0) save(&GameState::totalEnergyAvailable, a = b);\n"},
      {"src/shell/a.cpp",
       "auto size = std::filesystem::file_size(std::filesystem::path(path), problem);\nrow.value(3);\nat(3);\n"},
      {"tests/a_test.cpp", "rows.at(3);\n"},
      {"src/music/pools.cpp",
       "{\"The Return, Pa"
       "rt 2.0\"}\n"},
      {"docs/a.md", "a special part of the workplace, 3 parts\n"},
  };
  for (const Sample& sample : harmless) {
    for (const Complaint& complaint : complaintsAbout(sample.path, sample.text)) {
      ADD_FAILURE() << sample.text << complaint.line << ": " << complaint.what;
    }
  }
}

}  // namespace
}  // namespace backbeat::tree
