// The game on a computer.
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>

#include "core/memory_store.h"
#include "core/money.h"
#include "shell/native/career_transfer.h"
#include "shell/native/command_line.h"
#include "shell/native/console_player.h"
#include "shell/native/save_info.h"
#include "shell/native/sqlite_store.h"
#include "shell/trace.h"

namespace backbeat {
namespace {

enum ExitCode { done = 0, failed = 1, misused = 2, overflowed = 70 };

/// The engine is built so that an amount which outgrows its number stops the program at once. What was committed stays.
void tellOverflow(int) {
  constexpr std::string_view message =
      "\nAn amount grew past what the game can count. The save holds the last whole step.\n";
  // Nothing can be done about a message that does not get out.
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, message.data(), message.size());
  _exit(overflowed);
}

void catchOverflow() {
  for (const int signal : {SIGILL, SIGTRAP, SIGABRT}) {
    struct sigaction action = {};
    action.sa_handler = tellOverflow;
    sigaction(signal, &action, nullptr);
  }
}

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

int64_t unixMilliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

uint64_t seedOfTheSystem() {
  std::random_device entropy;
  return uint64_t{entropy()} << 32 | entropy();
}

int fail(const std::string& why) {
  std::cerr << "backbeat: " << why << '\n';
  return failed;
}

ConsolePlayer::Look look() {
  const bool terminal = isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
  return {terminal, isatty(STDOUT_FILENO) != 0 && environment("NO_COLOR").empty()};
}

int play(const CommandLine& line) {
  SqliteStore::Opened opened = SqliteStore::open(line.save);
  if (!opened.store) return fail(opened.problem);
  std::ofstream trace;
  std::function<void(const std::string&)> record;
  if (!line.trace.empty()) {
    trace.open(line.trace, std::ios::binary | std::ios::trunc);
    if (!trace) return fail("the trace " + line.trace + " cannot be written.");
    record = [&](const std::string& event) { trace << event + '\n' << std::flush; };
  }
  QuietPlatform platform;
  TraceRecorder career(*opened.store, platform, record);
  career.play(launchEvent(unixMilliseconds(), line.seed.value_or(seedOfTheSystem())));
  ConsolePlayer(career, *opened.store, std::cin, std::cout, look(), unixMilliseconds).run();
  if (!line.trace.empty() && !trace) return fail("the trace " + line.trace + " is not complete.");
  if (career.session().game().saveFile.failing()) return fail("the last steps could not be saved.");
  return done;
}

int replay(const CommandLine& line) {
  std::ifstream file(line.trace, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file.is_open() || file.bad()) return fail("the trace " + line.trace + " cannot be read.");
  const Trace trace = readTrace(text);
  if (!trace.problem.empty()) return fail(line.trace + ", " + trace.problem + ".");
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : trace.events) career.play(event);
  std::cout << hashText(stateHash(career.session().game().state)) << '\n';
  return done;
}

/// Opens a save that is there: opening one that is not, or is still empty, would begin it.
SqliteStore::Opened openExisting(const std::string& save) {
  std::error_code problem;
  const auto size = std::filesystem::file_size(save, problem);
  if (problem || size == 0) return {nullptr, "there is no save in " + save + "."};
  return SqliteStore::open(save);
}

int info(const CommandLine& line) {
  const SqliteStore::Opened opened = openExisting(line.save);
  if (!opened.store) return fail(opened.problem);
  std::cout << saveInfo(*opened.store);
  return done;
}

int exportCareerFile(const CommandLine& line) {
  const SqliteStore::Opened opened = openExisting(line.save);
  if (!opened.store) return fail(opened.problem);
  GameState state;
  const LoadReport report = SaveFile(*opened.store).load(state);
  if (!report.readable) return fail("the save " + line.save + " cannot be read.");
  const std::string problem = exportToFile(state, line.career);
  if (!problem.empty()) return fail(problem);
  for (const std::string& key : report.damagedLists) std::cerr << "backbeat: " << key << " is damaged and left out.\n";
  std::cout << "The career is in " << line.career << ".\n";
  return done;
}

int importCareerFile(const CommandLine& line) {
  const SqliteStore::Opened opened = SqliteStore::open(line.save);
  if (!opened.store) return fail(opened.problem);
  const FileImport import = importFromFile(line.career, *opened.store);
  if (!import.problem.empty()) return fail(import.problem);
  std::cout << importMessage(import) << '\n';
  return done;
}

int run(const CommandLine& line) {
  if (!line.problem.empty()) {
    std::cerr << line.problem;
    return misused;
  }
  switch (line.command) {
    case CommandLine::Command::play: return play(line);
    case CommandLine::Command::replay: return replay(line);
    case CommandLine::Command::info: return info(line);
    case CommandLine::Command::exportCareer: return exportCareerFile(line);
    case CommandLine::Command::importCareer: return importCareerFile(line);
    case CommandLine::Command::simulate: return runSimulation(line.simulate);
    case CommandLine::Command::version: std::cout << "backbeat 1.0\n"; return done;
    case CommandLine::Command::help: std::cout << line.help; return done;
  }
  return misused;
}

}  // namespace
}  // namespace backbeat

int main(int count, char** words) {
  using namespace backbeat;
  catchOverflow();
  const std::string save = defaultSaveFile(environment("XDG_DATA_HOME"), environment("HOME"));
  return run(readCommandLine({words + 1, static_cast<size_t>(std::max(count - 1, 0))}, save));
}
