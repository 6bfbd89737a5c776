// Careers in and out of files on a computer.
#pragma once

#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/store.h"

namespace backbeat {

/// Writes the career to the file at `path`, whole or not at all; a file that was there is replaced. What went wrong, as
/// one sentence, or "".
std::string exportToFile(const GameState& state, const std::string& path);

struct FileImport {
  std::string problem;               ///< one sentence; "" when the career is in the store now
  std::vector<std::string> missing;  ///< keys that the file lacked
};

/// Puts the career of the file at `path` in the place of what `store` holds, which is kept aside as a copy when there
/// is a career in it. The game has to be launched anew afterwards. All or nothing.
FileImport importFromFile(const std::string& path, CareerStore& store);

/// What the import did, for the player: the keys that the file lacked.
std::string importMessage(const FileImport& import);

}  // namespace backbeat
