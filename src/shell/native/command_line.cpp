#include "shell/native/command_line.h"

#include <algorithm>
#include <charconv>

namespace backbeat {

namespace {

using Command = CommandLine::Command;

struct CommandText {
  std::string_view word;
  Command command;
  std::string_view usage;
  std::string_view help;
};

constexpr CommandText commands[] = {
    {"play", Command::play, "backbeat play [--save FILE] [--seed N] [--trace FILE]",
     "Plays in the terminal; type help there. The career is kept after every press.\n"
     "  --save FILE   the career to go on with, or to begin\n"
     "  --seed N      the chance of this launch, 0 to 18446744073709551615; otherwise the system's own\n"
     "  --trace FILE  writes down every press, for backbeat replay\n"},
    {"replay", Command::replay, "backbeat replay FILE",
     "Plays a trace into a career of its own, which is not kept, and prints the fingerprint of where it ends.\n"},
    {"info", Command::info, "backbeat info [--save FILE]",
     "Tells what a save holds, and changes nothing.\n"
     "  --save FILE   the save to look into\n"},
    {"export", Command::exportCareer, "backbeat export FILE [--save FILE]",
     "Writes the whole career into one binary property list, to keep or to carry to another device.\n"
     "  --save FILE   the save to take it from\n"},
    {"import", Command::importCareer, "backbeat import FILE [--save FILE]",
     "Puts the career of such a file in the place of the one in the save, which is kept aside: Settings, Restore.\n"
     "  --save FILE   the save to put it into\n"},
    {"simulate", Command::simulate,
     "backbeat simulate [--strategy NAME] [--careers N] [--years Y] [--seed S] [--jobs J]\n"
     "                [--csv FILE] [--json] [--trace FILE] [--profile]",
     "Plays whole careers by a strategy and tells how they end. Nothing is kept but what is asked for.\n"
     "  --strategy NAME  idle, casual, keen (unless told otherwise) or mogul\n"
     "  --careers N      how many careers, 100 unless told otherwise; they have the seeds S, S+1 and so on\n"
     "  --years Y        how long each lasts, 10 unless told otherwise\n"
     "  --seed S         the chance of the first career, 1 unless told otherwise\n"
     "  --jobs J         how many are played at once; otherwise one for each core\n"
     "  --csv FILE       writes a row for each career and year\n"
     "  --json           tells the outcome as JSON\n"
     "  --trace FILE     writes down every press of the first career, for backbeat replay\n"
     "  --profile        tells how the time of a turn divides over its steps\n"},
};

std::string wholeUsage() {
  std::string text = "usage:";
  for (const CommandText& each : commands) {
    text += (text.ends_with('\n') ? "       " : " ") + std::string(each.usage) + "\n";
  }
  return text + "       backbeat --help | --version\n";
}

std::string usageOf(const CommandText& command) { return "usage: " + std::string(command.usage) + "\n"; }

CommandLine helpOf(std::string text) {
  CommandLine line;
  line.help = std::move(text);
  return line;
}

CommandLine misuse(const std::string& what, const std::string& usage) {
  CommandLine line;
  line.problem = "backbeat: " + what + "\n" + usage;
  return line;
}

/// Takes one option with its value; what is wrong with it, or "".
std::string takeOption(CommandLine& line, std::string_view option, std::string_view value) {
  const bool plays = line.command == Command::play;
  if (line.command == Command::simulate) {
    const auto problem = takeSimulateOption(line.simulate, option, value);
    if (!problem || !problem->empty()) return problem.value_or("unknown option " + std::string(option));
  } else if (option == "--save" && line.command != Command::replay) {
    line.save = value;
  } else if (option == "--trace" && plays) {
    line.trace = value;
  } else if (option == "--seed" && plays) {
    uint64_t seed = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seed);
    if (error != std::errc() || end != value.data() + value.size()) {
      return "--seed takes a whole number, not \"" + std::string(value) + "\"";
    }
    line.seed = seed;
  } else {
    return "unknown option " + std::string(option);
  }
  return value.empty() ? std::string(option) + " needs a value behind it" : "";
}

/// Where the file goes that a command takes without an option; nullptr for a command that takes none.
std::string* fileOf(CommandLine& line) {
  switch (line.command) {
    case Command::replay: return &line.trace;
    case Command::exportCareer:
    case Command::importCareer: return &line.career;
    default: return nullptr;
  }
}

CommandLine readCommand(const CommandText& command, std::span<const char* const> words,
                        const std::string& defaultSave) {
  CommandLine line;
  line.command = command.command;
  line.save = defaultSave;
  for (size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--help" || word == "-h") return helpOf(usageOf(command) + "\n" + std::string(command.help));
    std::string problem;
    if (line.command == Command::simulate && takeSimulateFlag(line.simulate, word)) continue;
    if (word.starts_with("-")) {
      const std::string_view value = i + 1 < words.size() ? words[i + 1] : "";
      problem = takeOption(line, word, value);
      ++i;
    } else if (std::string* file = fileOf(line); file && file->empty() && !word.empty()) {
      *file = word;
    } else {
      problem = "unexpected word \"" + std::string(word) + "\"";
    }
    if (!problem.empty()) return misuse(problem, usageOf(command));
  }
  if (const std::string* file = fileOf(line); file && file->empty()) {
    return misuse(std::string(command.word) + " needs a file", usageOf(command));
  }
  return line;
}

}  // namespace

CommandLine readCommandLine(std::span<const char* const> words, const std::string& defaultSave) {
  if (words.empty()) return misuse("say what to do", wholeUsage());
  const std::string_view first = words[0];
  if (first == "--help" || first == "-h") {
    return helpOf("Backbeat, a life in music, one week at a time.\n\n" + wholeUsage() +
                  "\nEach command has a --help of its own.\n");
  }
  if (first == "--version") {
    CommandLine line;
    line.command = Command::version;
    return line;
  }
  const auto found =
      std::find_if(std::begin(commands), std::end(commands), [&](const CommandText& c) { return c.word == first; });
  if (found == std::end(commands)) return misuse("unknown command \"" + std::string(first) + "\"", wholeUsage());
  return readCommand(*found, words.subspan(1), defaultSave);
}

std::string defaultSaveFile(std::string_view xdgDataHome, std::string_view home) {
  std::string folder;
  if (xdgDataHome.starts_with('/')) {
    folder = std::string(xdgDataHome) + "/backbeat/";
  } else if (!home.empty()) {
    folder = std::string(home) + "/.local/share/backbeat/";
  }
  return folder + "career.backbeat";
}

}  // namespace backbeat
