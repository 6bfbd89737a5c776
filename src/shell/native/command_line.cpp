// The only source that is built with exceptions: the library that reads the words refuses with them, and none leaves
// this file.
#include "shell/native/command_line.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <vector>

#include "shell/simulate/strategy.h"

namespace backbeat {

namespace {

using Command = CommandLine::Command;

/// What one word after the program's name may go on with.
class Reader {
 public:
  Reader(CommandLine& line, const std::string& defaultSave) : line_(line) {
    line_.save = defaultSave;
    app_.require_subcommand(1);
    app_.set_version_flag("--version", "backbeat 1.0", "Print the version");
    app_.footer("Each command has a --help of its own.");
    addPlay();
    addReplay();
    addInfo();
    addCopies();
    addTransfers();
    addSimulate();
  }

  void read(const std::vector<std::string>& words) {
    const std::string first = words.empty() ? "" : words.front();
    // The library takes them from the end.
    std::vector<std::string> reversed(words.rbegin(), words.rend());
    try {
      app_.parse(std::move(reversed));
    } catch (const CLI::CallForVersion& version) {
      line_.help = std::string(version.what()) + "\n";
    } catch (const CLI::Success&) {
      line_.help = helpAsked();
    } catch (const CLI::ParseError& refusal) {
      const bool named = !app_.get_subcommands().empty() || words.empty() || first.starts_with('-');
      const std::string what = named ? refusal.what() : "there is no command \"" + first + "\"";
      line_.problem = "backbeat: " + what + "\n" + helpAsked();
    }
  }

 private:
  CLI::App& command(const char* word, Command value, const char* help) {
    CLI::App& added = *app_.add_subcommand(word, help);
    added.footer("");
    added.callback([this, value] { line_.command = value; });
    return added;
  }

  /// The help of the command that the words name, or of the program.
  std::string helpAsked() const {
    const std::vector<CLI::App*> named = app_.get_subcommands();
    return (named.empty() ? app_.help() + "\n" : named.front()->help("backbeat"));
  }

  CLI::Option& text(CLI::App& to, const char* name, std::string& target, const char* help) {
    return *to.add_option(name, target, help)->check(notEmpty_);
  }

  void addSave(CLI::App& to, const char* help) { text(to, "--save", line_.save, help).type_name("FILE"); }
  void addForce(CLI::App& to) { to.add_flag("--force", line_.force, "Replace a file that is there"); }

  void addPlay() {
    CLI::App& play = command("play", Command::play, "Play in the terminal; the career is kept after every press");
    addSave(play, "The career to go on with, or to begin");
    play.add_option("--seed", line_.seed, "The chance of this launch; otherwise the system's own")
        ->check(wholeNumber_)
        ->type_name("N");
    text(play, "--trace", line_.trace, "Write down every press, for backbeat replay").type_name("FILE");
    addForce(play);
  }

  void addReplay() {
    CLI::App& replay = command("replay", Command::replay,
                               "Play a trace into a career that is not kept, and print the fingerprint of its end");
    text(replay, "trace", line_.trace, "The trace").type_name("FILE")->required();
  }

  void addInfo() { addSave(command("info", Command::info, "Tell what a save holds"), "The save to look into"); }

  void addCopies() {
    CLI::App& copies = command("copies", Command::copies, "List the kept copies of a save, go back to one, delete one");
    copies.add_option("task", line_.copiesTask, "What to do")
        ->check(CLI::IsMember({"list", "restore", "delete"}))
        ->capture_default_str();
    copies.add_option("number", line_.copy, "Which one, by its number in the list")
        ->check(CLI::Range(int64_t{1}, int64_t{1000}))
        ->type_name("N");
    addSave(copies, "The save that they belong to");
    copies.add_flag("--force", line_.force,
                    "Delete it, or give up the oldest copy where there is no room for one more");
  }

  void addTransfers() {
    CLI::App& out = command("export", Command::exportCareer, "Write the whole career into one binary property list");
    text(out, "file", line_.career, "The file that gets it").type_name("FILE")->required();
    addSave(out, "The save to take it from");
    addForce(out);
    CLI::App& in = command("import", Command::importCareer,
                           "Put the career of such a file in the place of the one in the save, which is kept aside");
    text(in, "file", line_.career, "The file that holds it").type_name("FILE")->required();
    addSave(in, "The save to put it into");
    in.add_flag("--force", line_.force, "Give up the oldest kept copy where there is no room for one more");
  }

  void addSimulate() {
    SimulateOptions& options = line_.simulate;
    CLI::App& simulate =
        command("simulate", Command::simulate, "Play whole careers by a strategy and tell how they end");
    std::vector<std::string> names;
    for (const StrategyEntry& each : strategies()) names.emplace_back(each.name);
    simulate.add_option("--strategy", options.strategy, "Who plays")
        ->check(CLI::IsMember(names))
        ->capture_default_str();
    number(simulate, "--careers", options.careers, mostCareers, "How many careers; their seeds follow each other");
    number(simulate, "--years", options.years, mostYears, "How long each lasts");
    simulate.add_option("--seed", options.seed, "The chance of the first career")->check(wholeNumber_)->type_name("N");
    number(simulate, "--jobs", options.jobs, mostJobs, "How many are played at once; otherwise one for each core");
    text(simulate, "--csv", options.csv, "Write a row for each career and year").type_name("FILE");
    text(simulate, "--trace", options.trace, "Write down every press of the first career").type_name("FILE");
    simulate.add_flag("--json", options.json, "Tell the outcome as JSON");
    simulate.add_flag("--profile", options.profile, "Tell how the time of a turn divides over its steps");
    simulate.add_flag("--force", options.force, "Replace files that are there");
  }

  static void number(CLI::App& to, const char* name, int64_t& target, int64_t most, const char* help) {
    to.add_option(name, target, help)->check(CLI::Range(int64_t{1}, most))->type_name("N");
  }

  CommandLine& line_;
  CLI::App app_{"Backbeat, a life in music, one week at a time.", "backbeat"};
  const CLI::Validator notEmpty_{[](std::string& value) { return value.empty() ? "nothing stands behind it" : ""; }, "",
                                 "not empty"};
  /// The library takes "-1" and what is too large for the greatest number there is.
  const CLI::Validator wholeNumber_{[](const std::string& value) {
                                      uint64_t number = 0;
                                      const char* end = value.data() + value.size();
                                      const auto [last, error] = std::from_chars(value.data(), end, number);
                                      return error == std::errc() && last == end
                                                 ? ""
                                                 : "takes a whole number up to 18446744073709551615, not \"" + value +
                                                       "\"";
                                    },
                                    "", "whole number"};
};

}  // namespace

CommandLine readCommandLine(std::span<const char* const> words, const std::string& defaultSave) {
  CommandLine line;
  Reader(line, defaultSave).read({words.begin(), words.end()});
  return line;
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
