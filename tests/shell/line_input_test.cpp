#include "shell/native/line_input.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace backbeat {
namespace {

/// Reads what the terminal shows until the prompt of a new line stands there, and waits until keys reach the editor one
/// by one, which is a moment later.
void awaitPrompt(int terminal, bool afterALine) {
  std::string shown;
  size_t line = std::string::npos;
  while (line == std::string::npos || shown.find("> ", line) == std::string::npos) {
    char one = 0;
    if (read(terminal, &one, 1) != 1) return;
    shown += one;
    line = afterALine ? shown.find('\n') : 0;
  }
  termios mode = {};
  while (tcgetattr(terminal, &mode) == 0 && (mode.c_lflag & ICANON) != 0) usleep(100);
}

/// Whether a person who types each of these at its prompt has entered the lines expected, and then ended the input:
/// told by a child whose terminal is held by the test.
bool enters(const std::vector<std::string>& typed, const std::vector<std::string>& expected) {
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) {
    setenv("TERM", "xterm", 1);
    const LineInput input = linesFromTerminal();
    bool same = true;
    for (const std::string& line : expected) same = input("> ") == line && same;
    _exit(same && !input("> ") ? 0 : 1);
  }
  for (size_t i = 0; i < typed.size(); ++i) {
    awaitPrompt(terminal, i > 0);
    if (write(terminal, typed[i].data(), typed[i].size()) < 0) break;
  }
  int status = -1;
  waitpid(child, &status, 0);
  close(terminal);
  return status == 0;
}

TEST(LineInput, ALineAtTheTerminalCanBeEditedAndCalledBack) {
  const std::string left = "\x1b[D";
  const std::string up = "\x1b[A";
  const std::string end = "\x04";
  EXPECT_TRUE(enters({"1 Zö Falk" + left + left + left + left + left + "e\n", up + "!\n", "\n", end},
                     {"1 Zöe Falk", "1 Zöe Falk!", ""}));
}

}  // namespace
}  // namespace backbeat
