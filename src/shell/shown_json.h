// What is on the glass, as the page reads it.
#pragma once

#include <string>

#include "shell/navigator.h"

namespace backbeat {

/// The JSON of docs/page-protocol.md. Members that say nothing (an empty text, an empty list, false) are left out.
std::string shownAsJson(const Navigator& navigator, const Shown& shown);

}  // namespace backbeat
