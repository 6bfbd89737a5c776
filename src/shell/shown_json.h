// What is on the glass, as the page reads it.
#pragma once

#include <string>

#include "shell/navigator.h"

namespace backbeat {

/// The JSON of docs/page-protocol.md. Members that stand on their default are left out.
std::string shownAsJson(const Navigator& navigator, const Shown& shown);

}  // namespace backbeat
