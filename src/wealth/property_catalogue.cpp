#include "wealth/property_catalogue.h"

#include <algorithm>

namespace backbeat {

const Property* propertyWithId(int64_t propertyId) {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const Property& each) { return each.propertyId == propertyId; });
  return found == properties.end() ? nullptr : &*found;
}

}  // namespace backbeat
