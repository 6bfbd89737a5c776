// What must hold for every screen, whatever it shows.
#pragma once

#include <functional>
#include <string>

#include "shell/session.h"

namespace backbeat {

/// What is wrong with a description, or "": it says the same twice and leaves the state alone, names only icons and
/// pictures that the page has a drawing for, and can be printed within the width of a terminal.
std::string glassFault(const Session& session, const std::function<Shown()>& shown);

}  // namespace backbeat
