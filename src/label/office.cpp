#include "label/office.h"

#include <algorithm>
#include <string>

#include "core/purse.h"
#include "label/departments.h"

namespace backbeat {

namespace {

constexpr int64_t capacityWithoutBooths = 3;

/// How many artists there is room for, as a sale counts it.
int64_t countedCapacity(const GameState& state) {
  int64_t capacity = capacityWithoutBooths;
  for (const Booth& booth : booths) capacity += booth.counted * state.*booth.owned;
  return capacity;
}

void addBooths(Game& game, const Booth& booth, int64_t count, double cost) {
  GameState& state = game.state;
  state.totalRecordLabelCost += cost;
  state.*booth.owned += count;
  state.studioCapacity += count * booth.capacity;
  game.save(&GameState::totalRecordLabelCost, &GameState::studioCapacity, booth.owned);
  labelChanged(game);
}

}  // namespace

const Booth* boothNamed(std::string_view kind) {
  const auto found = std::find_if(booths.begin(), booths.end(), [&](const Booth& booth) { return booth.kind == kind; });
  return found == booths.end() ? nullptr : &*found;
}

int64_t boothCount(const GameState& state) {
  int64_t count = 0;
  for (const Booth& booth : booths) count += state.*booth.owned;
  return count;
}

double officeCosts(const GameState& state) {
  const double perks = state.labelOfficePerkSpend * static_cast<double>(state.saveAllEmployeeList.size());
  return (state.labelOfficePerkSpend > 0 ? perks : 0) + state.labelOfficeRent;
}

Outcome setOffice(Game& game, const Office& office) {
  GameState& state = game.state;
  const auto staff = static_cast<int64_t>(state.saveAllEmployeeList.size());
  if (staff > office.capacity || boothCount(state) > office.boothMax) {
    return refuse<"😭 Layoffs Needed 😭">(
        "You have too many employees to downsize or too many booths for this space.\n\nLayoff employees or reduce your "
        "artist/booth count.");
  }
  state.typeOfOffice = office.typeOfOffice;
  state.officeCapacity = office.capacity;
  state.labelOfficeRent = office.rent;
  state.boothMax = office.boothMax;
  game.save(&GameState::typeOfOffice, &GameState::officeCapacity, &GameState::labelOfficeRent, &GameState::boothMax);
  labelChanged(game);
  return success();
}

Outcome buyBooth(Game& game, const Booth& booth) {
  if (!hasCash(game.state, booth.price())) return noCash("You do not have enough cash to purchase this booth.");
  if (boothCount(game.state) >= game.state.boothMax) {
    return refuse<"🏢 Not Enough Space 🏢">("You do not have enough space at the " + game.state.typeOfOffice +
                                          " to add another booth.");
  }
  pay(game, booth.price());
  addBooths(game, booth, 1, booth.buyPrice);
  return success();
}

Outcome sellBooth(Game& game, const Booth& booth) {
  const int64_t spare = countedCapacity(game.state) - activeArtists(game.state);
  if (game.state.*booth.owned < 1 || spare < booth.neededToSell) {
    return refuse<"😭 Drop Artists 😭">(
        "You have too many artists to get rid of this booth. You can drop artists to sell this booth.");
  }
  earn(game, {.dollars = booth.salePrice});
  addBooths(game, booth, -1, -booth.salePrice);
  return success();
}

}  // namespace backbeat
