// Where the console's lines come from.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

namespace backbeat {

/// The next line that is typed, without its end; nothing once there are no more. `prompt` stands before it where
/// somebody sees it.
using LineInput = std::function<std::optional<std::string>(const std::string& prompt)>;

/// From a pipe or a file, where nobody needs a prompt. The stream outlives it.
LineInput linesFrom(std::istream& in);

/// From a person at the terminal: what is typed can be edited, and earlier lines called back. What is printed has to be
/// flushed before a line is asked for.
LineInput linesFromTerminal();

}  // namespace backbeat
