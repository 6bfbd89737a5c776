#include "shell/simulate/strategy.h"

#include <algorithm>

#include "shell/simulate/casual.h"
#include "shell/simulate/dynast.h"
#include "shell/simulate/founder.h"
#include "shell/simulate/idle.h"
#include "shell/simulate/investor.h"
#include "shell/simulate/keen.h"
#include "shell/simulate/lifelong.h"
#include "shell/simulate/mogul.h"
#include "shell/simulate/owner.h"

namespace backbeat {

namespace {

template <class S>
std::unique_ptr<Strategy> make() {
  return std::make_unique<S>();
}

constexpr StrategyEntry all[] = {
    {"idle", "ends weeks and does nothing else", make<Idle>},
    {"casual", "a job, a song every other month, a few traits", make<Casual>},
    {"keen", "a song every other week, albums, traits, studio, marketing, contracts, films, small tours, a shop",
     make<Keen>},
    {"dynast", "keen, with a family: an heir is raised and goes on", make<Dynast>},
    {"owner", "keen, and homes and vehicles for what is left", make<Owner>},
    {"investor", "keen, and a part in every startup that asks", make<Investor>},
    {"mogul", "keen, and everything that money buys", make<Mogul>},
    {"founder", "keen, and a label as soon as there is money for one", make<Founder>},
    {"lifelong", "all of a life: family, label, homes, vehicles, startups, and heirs who go on", make<Lifelong>},
};

}  // namespace

std::span<const StrategyEntry> strategies() { return all; }

const StrategyEntry* strategyNamed(std::string_view name) {
  const auto found =
      std::find_if(std::begin(all), std::end(all), [&](const StrategyEntry& each) { return each.name == name; });
  return found == std::end(all) ? nullptr : found;
}

}  // namespace backbeat
