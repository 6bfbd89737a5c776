// A festival's bill, as invitations and the archive show it.
#pragma once

#include <string>
#include <vector>

#include "core/view.h"

namespace backbeat {

/// The acts by their place on the bill; `place` is the artist's own, from 1.
std::vector<Bill::Act> billActs(const std::vector<std::string>& acts, size_t place);

/// "4th of 20".
std::string placeText(size_t place, size_t acts);

}  // namespace backbeat
