// The festivals of the world, and the small ones nearby.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace backbeat {

struct FestivalLocation {
  int64_t id = 0;
  std::string_view name;
  std::string_view location;
  int64_t audience = 0;
  double chance = 0;                         ///< in 100: how hard its top slot is to win
  std::array<std::string_view, 3> genres{};  ///< empty where there are fewer
};

/// In order of the audience. Names stand as the festivals spell them: intended.
extern const std::array<FestivalLocation, 32> festivalLocations;

/// For a festival in the neighbourhood, which one who is not known yet is invited to.
extern const std::array<std::string_view, 7> localFestivalNames;
extern const std::array<std::string_view, 7> localFestivalPlaces;

}  // namespace backbeat
