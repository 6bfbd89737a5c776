// Files that a command reads or writes, wherever a player points: nothing is written over by mistake, and nothing that
// is no file stops the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace backbeat {

/// Why `path` cannot get what a command writes, as one sentence; "" when it can. Refused are a folder, a device or a
/// pipe, a save of this game (any SQLite file) and the open save `save`, by whatever name it goes; without `force` a
/// file that is there. A link is followed.
std::string targetRefusal(const std::string& path, const std::string& save, bool force);

/// Why `path` cannot be a save, as one sentence; "" when it can. Only plain paths can, since SQLite has names of its
/// own for what is no file.
std::string saveRefusal(const std::string& path);

/// A whole file, as read.
struct FileContent {
  std::string bytes;
  std::string problem;  ///< one sentence; "" when all of the file is in `bytes`
};

/// Reads a plain file of at most `most` bytes. Whatever else stands at `path` is refused.
FileContent readFile(const std::string& path, size_t most);

/// Writes the bytes to the file at `path`, whole or not at all, beside it first and under a name that nobody else has.
/// What went wrong, as one sentence, or "".
std::string writeWhole(const std::string& path, std::string_view bytes);

}  // namespace backbeat
