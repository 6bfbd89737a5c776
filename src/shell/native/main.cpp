// The game on a computer.
#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "core/memory_store.h"
#include "core/money.h"
#include "shell/native/career_transfer.h"
#include "shell/native/command_line.h"
#include "shell/native/console_player.h"
#include "shell/native/copies_command.h"
#include "shell/native/file_places.h"
#include "shell/native/last_words.h"
#include "shell/native/line_input.h"
#include "shell/native/rescue_menu.h"
#include "shell/native/save_info.h"
#include "shell/native/score_file.h"
#include "shell/native/sqlite_store.h"
#include "shell/trace.h"

namespace backbeat {
namespace {

enum ExitCode { done = 0, failed = 1, misused = 2 };

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

constexpr size_t largestTrace = size_t{256} << 20;

int64_t unixMilliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

Date now() { return {static_cast<double>(unixMilliseconds()) / 1000}; }

uint64_t seedOfTheSystem() {
  uint64_t seed = 0;
  // Without the system's own chance the hour is as good.
  if (getentropy(&seed, sizeof seed) != 0) seed = static_cast<uint64_t>(unixMilliseconds());
  return seed;
}

/// What a command was asked for, on the standard output; a full disk or a closed pipe is told.
int answer(const std::string& text) {
  std::cout << text << std::flush;
  if (std::cout) return done;
  std::cerr << "backbeat: the answer could not be written.\n";
  return failed;
}

int fail(const std::string& why) {
  std::cerr << "backbeat: " << why << '\n';
  return failed;
}

bool isTerminal(int file) { return isatty(file) != 0; }

/// How wide the player's terminal is just now; where that is not known, as wide as a page can be.
size_t terminalColumns() {
  winsize size = {};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return widestPage;
  return size.ws_col;
}

/// Whether anything was kept there before.
bool holdsCareer(Store& store) {
  bool found = false;
  store.visitRows([&](std::string_view, int32_t, const Value&) { found = true; });
  return found;
}

int play(const CommandLine& line) {
  SqliteStore::Opened opened = SqliteStore::open(line.save);
  if (!opened.store) return fail(opened.problem);
  std::ofstream trace;
  std::function<void(const std::string&)> record;
  if (!line.trace.empty()) {
    const std::string refusal = targetRefusal(line.trace, line.save, line.force);
    if (!refusal.empty()) return fail(refusal);
    trace.open(line.trace, std::ios::binary | std::ios::trunc);
    if (!trace) return fail("the trace " + line.trace + " cannot be written.");
    record = [&](const std::string& event) { trace << event + '\n' << std::flush; };
  }
  // A launch takes its time in the hundredth year, so only one that has stopped before is tried on the side first.
  const std::string problem = opened.store->launchStopped() ? launchProblem(*opened.store, now()) : "";
  if (!rescue(*opened.store, problem, std::cin, std::cout, now)) return failed;
  ScoreFile platform(line.save);
  TraceRecorder career(*opened.store, platform, record);
  if (!line.trace.empty() && holdsCareer(*opened.store)) {
    career.noteForeignCareer();
    std::cerr << "backbeat: this trace goes on with a career that is there already; it cannot be replayed.\n";
  }
  opened.store->beginLaunch();
  career.play(launchEvent(unixMilliseconds(), line.seed.value_or(seedOfTheSystem())));
  opened.store->endLaunch();
  const bool colour = isTerminal(STDOUT_FILENO) && environment("NO_COLOR").empty();
  const bool atTerminal = isTerminal(STDIN_FILENO) && isTerminal(STDOUT_FILENO);
  LineInput input = atTerminal ? linesFromTerminal() : linesFrom(std::cin);
  ConsolePlayer(career, *opened.store, platform, std::move(input), std::cout, colour, unixMilliseconds, terminalColumns)
      .run();
  if (!line.trace.empty() && !trace) return fail("the trace " + line.trace + " is not complete.");
  if (career.session().game().saveFile.failing()) return fail("the last steps could not be saved.");
  return done;
}

int replay(const CommandLine& line) {
  const FileContent text = readFile(line.trace, largestTrace);
  if (!text.problem.empty()) return fail(text.problem);
  const Trace trace = readTrace(text.bytes);
  if (!trace.problem.empty()) return fail(line.trace + ", " + trace.problem + ".");
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : trace.events) career.play(event);
  return answer(hashText(stateHash(career.session().game().state)) + "\n");
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
  return answer(saveInfo(*opened.store));
}

int copies(const CommandLine& line) {
  const SqliteStore::Opened opened = openExisting(line.save);
  if (!opened.store) return fail(opened.problem);
  if (line.copiesTask == "list") return answer(listOfCopies(*opened.store));
  const auto copy = numberedCopy(*opened.store, line.copy);
  if (!copy) return fail("there is no such copy; backbeat copies lists them.");
  const bool deletes = line.copiesTask == "delete";
  const CopyTask done =
      deletes ? deleteCopy(*opened.store, *copy, line.force) : goBackTo(*opened.store, *copy, now(), line.force);
  return done.done ? answer(done.text + "\n") : fail(done.text);
}

int exportCareerFile(const CommandLine& line) {
  const std::string refusal = targetRefusal(line.career, line.save, line.force);
  if (!refusal.empty()) return fail(refusal);
  const SqliteStore::Opened opened = openExisting(line.save);
  if (!opened.store) return fail(opened.problem);
  GameState state;
  const LoadReport report = SaveFile(*opened.store).load(state);
  if (!report.readable) return fail("the save " + line.save + " cannot be read.");
  const std::string problem = exportToFile(state, line.career);
  if (!problem.empty()) return fail(problem);
  for (const std::string& key : report.damaged) std::cerr << "backbeat: " << key << " is damaged and left out.\n";
  if (report.lost > 0) std::cerr << "backbeat: " << counted(report.lost, "row") << " of the save are missing.\n";
  return answer("The career is in " + line.career + ".\n");
}

int importCareerFile(const CommandLine& line) {
  // Read before the save is opened: a file that is no career begins none.
  ImportedCareer career = readCareer(line.career, now());
  if (!career.state) return fail(career.problem);
  const SqliteStore::Opened opened = SqliteStore::open(line.save);
  if (!opened.store) return fail(opened.problem);
  const PutInPlace put = putInPlace(career, *opened.store, now(), line.force);
  if (!put.problem.empty()) return fail(put.problem);
  return answer(importMessage(career, put) + "\n");
}

int run(const CommandLine& line) {
  if (!line.problem.empty()) {
    std::cerr << line.problem;
    return misused;
  }
  const std::string refusal = saveRefusal(line.save);
  if (!refusal.empty()) return fail(refusal);
  switch (line.command) {
    case CommandLine::Command::play: return play(line);
    case CommandLine::Command::replay: return replay(line);
    case CommandLine::Command::info: return info(line);
    case CommandLine::Command::copies: return copies(line);
    case CommandLine::Command::exportCareer: return exportCareerFile(line);
    case CommandLine::Command::importCareer: return importCareerFile(line);
    case CommandLine::Command::simulate: return runSimulation(line.simulate);
    case CommandLine::Command::help: return answer(line.help);
  }
  return misused;
}

}  // namespace
}  // namespace backbeat

int main(int count, char** words) {
  using namespace backbeat;
  tellLastWords();
  const std::string save = defaultSaveFile(environment("XDG_DATA_HOME"), environment("HOME"));
  return run(readCommandLine({words + 1, static_cast<size_t>(std::max(count - 1, 0))}, save));
}
