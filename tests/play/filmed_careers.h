// First half years as different players live them, to read what a week tells: the gallery makes a picture of each.
#pragma once

#include "play/golden_careers.h"

namespace backbeat {

/// A careless one, a careful one and one that only works jobs; 30 weeks each, of a new life.
std::span<const GoldenCareer> filmedCareers();

}  // namespace backbeat
