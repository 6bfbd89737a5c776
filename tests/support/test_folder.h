// A folder of its own for a test's files, gone with the test.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace backbeat {

class TestFolder {
 public:
  TestFolder() {
    char name[] = "/tmp/backbeat-test-XXXXXX";
    path = mkdtemp(name);
  }
  ~TestFolder() { std::filesystem::remove_all(path); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string read(const std::string& name) const {
    std::ifstream file(path / name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }
  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
  }
  /// Runs a shell command in the folder.
  testing::AssertionResult run(const std::string& command) const {
    if (std::system(("cd " + path.string() + " && " + command).c_str()) == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << command << "\nfailed; plistutil (libplist-utils) and python3 are needed";
  }

  std::filesystem::path path;
};

}  // namespace backbeat
