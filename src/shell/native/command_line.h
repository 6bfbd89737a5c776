// The words behind `backbeat` on the command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "shell/simulate/simulate_command.h"

namespace backbeat {

struct CommandLine {
  enum class Command {
    play,
    replay,
    info,
    exportCareer,
    importCareer,
    copies,
    simulate,
    help,  ///< `help` is all there is to say: what was asked for, or the version
  } command = Command::help;
  std::string save;                 ///< the save's file, of play, info, copies, export and import
  std::optional<uint64_t> seed;     ///< of play
  std::string trace;                ///< of play: the file that a trace goes to, "" for none; of replay: the one to play
  std::string career;               ///< of export and import: the file that holds or gets the career
  std::string copiesTask = "list";  ///< of copies: list, restore or delete
  int64_t copy = 0;                 ///< of copies: the number of one in the list; 0 for none
  bool force = false;               ///< what else would be refused is done: a file replaced, a copy given up
  SimulateOptions simulate;         ///< of simulate
  std::string help;                 ///< of help: the text that was asked for
  std::string problem;              ///< why the words make no sense, with the usage; "" when they do
};

/// Reads the words behind the program's name. `defaultSave` is used where no save is named.
CommandLine readCommandLine(std::span<const char* const> words, const std::string& defaultSave);

/// Where a career is kept unless told otherwise: below $XDG_DATA_HOME when that is an absolute path, else below
/// $HOME/.local/share, else in the current folder. Takes the values of both, "" when unset.
std::string defaultSaveFile(std::string_view xdgDataHome, std::string_view home);

}  // namespace backbeat
