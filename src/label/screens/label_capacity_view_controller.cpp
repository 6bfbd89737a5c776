#include "label/screens/label_capacity_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "label/departments.h"
#include "label/office.h"

namespace backbeat {

namespace {

std::string perWeek(const Office& office) { return office.rent > 0 ? currency(office.rent) : "FREE"; }

/// Where the label works: by its name, whatever else the office has come to.
std::string_view sceneOf(const GameState& state) {
  const auto office = std::find_if(offices.begin(), offices.end(),
                                   [&](const Office& each) { return each.typeOfOffice == state.typeOfOffice; });
  return office == offices.end() ? offices.front().scene : office->scene;
}

Poster currentOffice(const GameState& state) {
  const auto staff = static_cast<int64_t>(state.saveAllEmployeeList.size());
  const auto filled = [](int64_t count, int64_t most) { return std::to_string(count) + "/" + std::to_string(most); };
  return {.pictures = {drawn(Picture::Kind::scene, sceneOf(state), state.myLabelName)},
          .kicker = state.myLabelName,
          .title = state.typeOfOffice,
          .facts = {{.icon = "people", .label = "Employees", .value = filled(staff, state.officeCapacity)},
                    {.icon = "booth", .label = "Booths", .value = filled(boothCount(state), state.boothMax)},
                    {.icon = "mic", .label = "Artists", .value = filled(activeArtists(state), state.studioCapacity)}}};
}

Card boothCard(const GameState& state, const Booth& booth) {
  const int64_t owned = state.*booth.owned;
  Card card{.picture = drawn(Picture::Kind::object, booth.picture, state.myLabelName),
            .title = std::string(booth.title),
            .text = std::string(booth.size) + " · room for " + counted(booth.capacity, "artist"),
            .value = std::to_string(owned) + " owned"};
  if (owned > 0) {
    card.buttons.push_back(
        {.id = "sellBooth:" + std::string(booth.kind), .label = "Sell for " + currency(booth.salePrice)});
  }
  card.buttons.push_back({.id = "buyBooth:" + std::string(booth.kind),
                          .label = "Buy",
                          .price = booth.price(),
                          .style = Button::Style::primary});
  return card;
}

Row officeRow(const GameState& state, size_t number) {
  const Office& office = offices[number];
  return {.picture = drawn(Picture::Kind::scene, office.scene, state.myLabelName),
          .title = std::string(office.typeOfOffice),
          .subtitle = std::to_string(office.capacity) + " people · " + std::to_string(office.boothMax) + " booths",
          .value = perWeek(office),
          .note = "a week",
          .selected = office.typeOfOffice == state.typeOfOffice,
          .id = "office:" + std::to_string(number)};
}

}  // namespace

Outcome LabelCapacityViewController::press(const Action& action) {
  if (action.verb() == "office") {
    const auto number = optionNumber(action.argument(), offices.size());
    return number ? setOffice(game_, offices[*number]) : Outcome{};
  }
  const Booth* booth = boothNamed(action.argument());
  if (booth && action.verb() == "buyBooth") return buyBooth(game_, *booth);
  if (booth && action.verb() == "sellBooth") return sellBooth(game_, *booth);
  return {};
}

void LabelCapacityViewController::describe(View& view) const {
  view.title = "Office & Studio";
  view.subtitle = state().myLabelName;
  view.add(currentOffice(state()));
  view.add(Heading{"Booths"});
  for (const Booth& booth : booths) view.add(boothCard(state(), booth));
  view.add(Heading{"Offices"});
  Rows rows;
  for (size_t i = 0; i < offices.size(); ++i) rows.items.push_back(officeRow(state(), i));
  view.add(std::move(rows));
  view.help =
      Help{.title = "Room for everybody",
           .text =
               "An office has desks for your staff and floor for your booths. You can move at any time, for nothing; "
               "the rent is paid each week, also from cash that is not there.\n\nA booth gives artists a place to "
               "record. Selling one brings half of its price back, as long as your artists find room without it."};
}

}  // namespace backbeat
