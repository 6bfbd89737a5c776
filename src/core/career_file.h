// A career as one file: a binary property list with every scalar and list of the save under its key, to carry from one
// device to another or to look into with any property-list tool.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/store.h"

namespace backbeat {

/// The whole career: whole numbers, doubles and texts as they are, lists as arrays of dictionaries in list order.
Bytes exportCareer(const GameState& state);

/// The name that a file of this career gets, made of letters, digits and hyphens: "backbeat-nova-2026-week-14.plist".
std::string exportFileName(const GameState& state);

struct ImportedCareer {
  std::optional<GameState> state;    ///< none when the file was refused
  std::string problem;               ///< then one sentence for the player: what is wrong, and where
  std::vector<std::string> missing;  ///< keys that the file lacks, in the order of the tables; they have their defaults
  std::vector<std::string> mended;   ///< what contradicted itself and was put right, a sentence each
};

/// Reads a career all or nothing. Refused are bytes that are no binary property list, a list without a single key of
/// the game's, a value of another kind, a number that does not fit, and a record with a field missing or too many
/// times, a number that no rule can carry, and two records of one id (core/career_check.h). Keys and fields that the
/// game does not know are passed over. A whole number is welcome for a double and a double without fraction for a whole
/// number, as when a save is loaded.
ImportedCareer importCareer(std::string_view file);

/// Every row of a save that holds `state`.
std::vector<Write> rowsOf(GameState& state);

}  // namespace backbeat
