#include "wealth/screens/transportation_options_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "wealth/garage.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

Row rowOf(const TransportationOption& option) {
  return {.picture = vehiclePicture(option.id, std::string(option.title)),
          .title = std::string(option.title),
          .subtitle = currency(option.weeklyInsuranceCost) + "/wk",
          .note = option.energyBonus > 0 ? "+" + std::to_string(option.energyBonus) + " max energy" : "",
          .tone = Tone::good,
          .price = costOf(option),
          .id = "vehicle:" + std::to_string(option.id)};
}

}  // namespace

const Transportation* TransportationOptionsViewController::shown() const {
  const auto& owned = state().saveAllTransportationOwnedList;
  if (owned.empty()) return nullptr;
  return &owned[vehiclePosition(state(), id_).value_or(owned.size() - 1)];
}

Outcome TransportationOptionsViewController::act(const Action& action) {
  const int64_t id = wholeNumber(action.argument()).value_or(0);
  const TransportationOption* option = vehicleWithId(id);
  if (action.verb() == "own" && vehiclePosition(state(), id)) id_ = id;
  if (action.verb() == "sell") return sellVehicle(game_, id);
  if (action.id == "sellButton" && shown()) {
    return askToSellVehicle(state(), shown()->id, {"sell:" + std::to_string(shown()->id), ""});
  }
  if (!option) return {};
  if (action.verb() == "vehicle") return askToBuyVehicle(state(), *option, {"purchase:" + std::to_string(id), ""});
  if (action.verb() != "purchase") return {};
  id_ = id;
  return buyVehicle(game_, *option);
}

View TransportationOptionsViewController::view() const {
  View view{.title = "Motors", .theme = Theme::estate};
  if (const Transportation* vehicle = shown()) {
    describeFloor(view, *vehicle);
    describeOwn(view, *vehicle);
    view.mainAction =
        Button{.id = "sellButton", .label = "Sell the " + vehicle->title, .price = costOfSale(state(), *vehicle)};
  } else {
    view.add(EmptyHint{.icon = "car", .text = "Your garage is empty. The first set of keys is below."});
  }
  describeShowroom(view);
  view.help = Help{.title = "Motors",
                   .text =
                       "A vehicle of your own loses 2.5% of its price each year and is insured every week. The finest "
                       "raise your max energy for as long as you keep them.\n\nWhat drives on roads takes the place of "
                       "the transportation of your lifestyle."};
  return view;
}

void TransportationOptionsViewController::describeOwn(View& view, const Transportation& vehicle) const {
  const double lost = static_cast<double>(state().yearNumber - vehicle.yearPurchased) * 2.5;
  view.add(Tiles{{{.label = "Lost in value",
                   .value = (lost > 0 ? "-" : "") + withDecimals(lost, 1) + "%",
                   .note = "2.5% a year",
                   .tone = lost > 0 ? Tone::bad : Tone::plain},
                  {.label = "Insurance", .value = currency(vehicle.weeklyCost), .note = "a week"},
                  {.label = "Energy",
                   .value = "+" + std::to_string(vehicle.energyBonus),
                   .note = "in all: +" + std::to_string(garageEnergy(state()))}}});
}

void TransportationOptionsViewController::describeFloor(View& view, const Transportation& vehicle) const {
  Rows floor{.style = Rows::Style::floor};
  for (const Transportation& own : state().saveAllTransportationOwnedList) {
    floor.items.push_back(
        {.picture = vehiclePicture(own.id, own.title),
         .title = own.title,
         .subtitle = "Bought " + std::to_string(own.yearPurchased) + " for " + currency(own.pricePaid),
         .value = currency(estimateOf(state(), own)),
         .selected = &own == &vehicle,
         .id = "own:" + std::to_string(own.id)});
  }
  view.add(Heading{"GARAGE"});
  view.add(std::move(floor));
}

void TransportationOptionsViewController::describeShowroom(View& view) const {
  Rows showroom;
  for (const TransportationOption& option : vehicles) {
    if (!vehiclePosition(state(), option.id)) showroom.items.push_back(rowOf(option));
  }
  if (showroom.items.empty()) return;
  view.add(Heading{"EXOTIC"});
  view.add(std::move(showroom));
}

}  // namespace backbeat
