// The venues a tour can play.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"

namespace backbeat {

struct TourLocation {
  enum class Type { national, global };
  int64_t id = 0;
  std::string_view name;
  std::string_view location;
  int64_t capacity = 0;  ///< seats
  Type type = Type::national;
  std::string_view form;  ///< how it is drawn
};

inline constexpr int64_t tourLocationCount = 26;
/// In the order in which they are offered, which is that of their ids.
extern const std::array<TourLocation, tourLocationCount> tourLocations;

/// Nullptr for an id that no venue has.
const TourLocation* tourLocation(int64_t id);

/// Draws how each venue's town feels about the artist, -5 to 5, once in a launch.
void drawVenueDemand(Game& game);

/// What a show there costs a week in energy.
int64_t showEnergy(const TourLocation& location);

}  // namespace backbeat
