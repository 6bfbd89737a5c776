// What a save holds, for somebody who is not playing it.
#pragma once

#include <string>

#include "core/store.h"

namespace backbeat {

/// Artist, week, cash, listeners, songs, the rows of each list, and the lists that cannot be read. Changes nothing in
/// the store: it is a copy that is loaded.
std::string saveInfo(Store& store);

}  // namespace backbeat
