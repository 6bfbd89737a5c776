// What somebody wants to be reached is reached, whatever chance does in the random careers.
#include <gtest/gtest.h>

#include "play/errand_runner.h"

namespace backbeat {
namespace {

TEST(ErrandsTest, EachGetsToItsEndInEachOfItsWorlds) {
  for (const std::string& fault : errandsRun().faults) ADD_FAILURE() << fault;
  EXPECT_GT(errands().size(), 20u) << "the rooms have not brought theirs";
}

}  // namespace
}  // namespace backbeat
