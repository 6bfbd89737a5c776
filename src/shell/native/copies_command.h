// The kept copies of a save, for whoever does not play: listed, gone back to, deleted.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/snapshots.h"

namespace backbeat {

/// A line for each copy, the newest first, under its number from 1 on.
std::string listOfCopies(Store& store);

/// The copy of that number; nothing when there is none.
std::optional<Snapshot> numberedCopy(Store& store, int64_t number);

struct CopyTask {
  bool done = false;
  std::string text;  ///< what was done, or why nothing was
};

/// Puts the copy in the place of what `store` holds, which is kept aside first. Refused without `force` when an older
/// copy would have to go for that, and always when what is there cannot be read or kept.
CopyTask goBackTo(CareerStore& store, const Snapshot& copy, Date now, bool force);

/// Deletes the copy; refused without `force`.
CopyTask deleteCopy(Store& store, const Snapshot& copy, bool force);

}  // namespace backbeat
