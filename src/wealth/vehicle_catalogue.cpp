#include "wealth/vehicle_catalogue.h"

#include <algorithm>

namespace backbeat {

const TransportationOption* vehicleWithId(int64_t id) {
  const auto found =
      std::find_if(vehicles.begin(), vehicles.end(), [&](const TransportationOption& each) { return each.id == id; });
  return found == vehicles.end() ? nullptr : &*found;
}

}  // namespace backbeat
