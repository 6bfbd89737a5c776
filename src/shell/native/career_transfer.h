// Careers in and out of files on a computer.
#pragma once

#include <string>

#include "core/career_file.h"
#include "core/store.h"

namespace backbeat {

/// Writes the career to the file at `path`, whole or not at all; a file that was there is replaced (see
/// `targetRefusal`). What went wrong, as one sentence, or "".
std::string exportToFile(const GameState& state, const std::string& path);

/// Reads the career in the file at `path`; one that cannot be read is refused as any other.
ImportedCareer readCareer(const std::string& path);

/// Puts a career that was read in the place of what `store` holds, which is kept aside as a copy when there is a career
/// in it. The game has to be launched anew afterwards. All or nothing: why nothing changed, or "".
std::string putInPlace(ImportedCareer& career, CareerStore& store);

/// What the import did, for the player: the keys that the file lacked.
std::string importMessage(const ImportedCareer& career);

}  // namespace backbeat
