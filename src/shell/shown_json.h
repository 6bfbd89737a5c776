// What is on the glass, as the page reads it.
#pragma once

#include <string>

#include "shell/navigator.h"

namespace backbeat {

/// The JSON of docs/page-protocol.md. Members that stand on their default are left out.
std::string shownAsJson(const Navigator& navigator, const Shown& shown);

/// The same of one screen alone, as `view` and `beside` have it.
std::string screenAsJson(const Navigator& navigator, const OtherScreen& other);

}  // namespace backbeat
