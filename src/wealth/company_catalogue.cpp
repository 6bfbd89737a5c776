#include "wealth/company_catalogue.h"

#include <algorithm>

namespace backbeat {

const Company* companyWithId(int64_t businessId) {
  const auto found = std::find_if(companies.begin(), companies.end(),
                                  [&](const Company& each) { return each.businessId == businessId; });
  return found == companies.end() ? nullptr : &*found;
}

}  // namespace backbeat
