// Careers in and out of files on a computer.
#pragma once

#include <string>

#include "core/career_file.h"
#include "core/store.h"

namespace backbeat {

/// Writes the career to the file at `path`, whole or not at all; a file that was there is replaced (see
/// `targetRefusal`). What went wrong, as one sentence, or "".
std::string exportToFile(const GameState& state, const std::string& path);

/// Reads the career in the file at `path` and tries it; one that cannot be read or played is refused as any other.
ImportedCareer readCareer(const std::string& path, Date now);

/// What became of a career that was to be put in place.
struct PutInPlace {
  std::string problem = {};  ///< why nothing changed, or ""
  std::string aside = {};    ///< where a save that could not be read is now, or ""
  bool kept = false;         ///< a copy holds what was there
};

/// Puts a career that was read in the place of what `store` holds, which is kept aside: as a copy, or where it cannot
/// be read as the raw file. The game has to be launched anew afterwards. All or nothing; refused without `force` when
/// an older copy would have to go for it.
PutInPlace putInPlace(ImportedCareer& career, CareerStore& store, Date now, bool force);

/// What the import did, for the player: where the career before it is, what was mended, the keys that the file lacked.
std::string importMessage(const ImportedCareer& career, const PutInPlace& done);

}  // namespace backbeat
