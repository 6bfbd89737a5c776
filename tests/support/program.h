// Runs the real program, as a player's shell does.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace backbeat {

/// The game's program, running. Ends with its object at the latest.
class Program {
 public:
  /// What it says, errors too, goes to `outputFile`.
  Program(const std::vector<std::string>& words, const std::string& outputFile);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Types into its pipe; stops early when nobody reads any more.
  void type(const std::string& text);
  /// Ends its input.
  void endInput();
  /// Ends it at once, as a dead battery does.
  void kill();
  /// Waits for its end. The exit code, or -1 when a signal ended it.
  int wait();

 private:
  pid_t process_ = 0;
  int input_ = -1;
};

struct ProgramRun {
  int exitCode = 0;
  std::string output;
};

/// Runs it to its end.
ProgramRun runProgram(const std::vector<std::string>& words, const std::string& input = "");

/// A path for a file of that name, with no file there, nor what a save leaves beside it.
std::string freshFile(const std::string& name);

std::string contentOf(const std::string& file);
void writeFile(const std::string& file, const std::string& content);

}  // namespace backbeat
