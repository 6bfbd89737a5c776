#include "wealth/news.h"

#include <algorithm>

#include "core/money.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/short_money.h"
#include "wealth/garage.h"
#include "wealth/net_assets.h"
#include "wealth/rich_list.h"

namespace backbeat {

namespace {

constexpr int64_t firstMillion = 1'000'000;

int64_t wholeFortune(double netAssets) { return truncate(std::max(netAssets, 0.0)); }

/// A million, ten of them, a hundred, where the week's cash carried the fortune past it. Nobody remembers whether it
/// was so before.
void addFortune(const Game& game, std::vector<News>& news) {
  const double now = netAssets(game.state);
  const double before = now - (game.state.totalCashAvailable - game.turn.before.cash);
  const int64_t passed = passedPowerOfTen(wholeFortune(before), wholeFortune(now));
  if (passed < firstMillion) return;
  const std::string place = worldRank(now);
  news.push_back(
      {.rank = passed == firstMillion ? 410 : 430,
       .key = "fortune " + std::to_string(passed),
       .picture = icon("podium"),
       .kicker = "Farbes has counted",
       .headline = "You are worth " + abbreviatedDollars(static_cast<double>(passed)),
       .text = place == "Unranked" ? "Cash, property, garage and ventures together" : place + " in the world today"});
}

}  // namespace

/// What is older than forty years costs more to be rid of each year.
void addWealthNeeds(const Game& game, std::vector<Need>& needs) {
  for (const Transportation& vehicle : game.state.saveAllTransportationOwnedList) {
    const double value = estimateOf(game.state, vehicle);
    if (value >= 0) continue;
    needs.push_back({.priority = 60,
                     .picture = vehiclePicture(vehicle.id, vehicle.title),
                     .title = "Your " + vehicle.title + " is worth less than nothing",
                     .subtitle = "To be rid of it costs " + currency(-value) + ", and more each year",
                     .segue = "goToTransportationOptions"});
    return;
  }
}

void addWealthNews(const Game& game, std::vector<News>& news) { addFortune(game, news); }

}  // namespace backbeat
