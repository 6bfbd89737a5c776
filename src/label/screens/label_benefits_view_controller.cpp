#include "label/screens/label_benefits_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "label/perks.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

void addPerks(View& view, const GameState& state, bool ofEnergy) {
  for (size_t i = 0; i < officePerks.size(); ++i) {
    const OfficePerk& perk = officePerks[i];
    if (perk.givesEnergy() != ofEnergy) continue;
    view.add(Toggle{.id = "perk:" + std::to_string(i),
                    .label = std::string(perk.title),
                    .on = state.*perk.on >= 1,
                    .note = "+" + shortNumber(perk.amount) + " · " + currency(perk.cost) + " per person"});
  }
}

}  // namespace

Outcome LabelBenefitsViewController::press(const Action& action) {
  if (action.verb() != "perk") return {};
  const auto number = optionNumber(action.argument(), officePerks.size());
  if (!number) return {};
  const OfficePerk& perk = officePerks[*number];
  if ((action.value == "1") == (state().*perk.on >= 1)) return {};
  toggleOfficePerk(game_, perk);
  return success();
}

void LabelBenefitsViewController::describe(View& view) const {
  view.title = "Benefits & Culture";
  const double spend = state().labelOfficePerkSpend;
  const auto staff = static_cast<double>(state().saveAllEmployeeList.size());
  view.add(Tiles{{{.label = "energy a week", .value = "+" + shortNumber(state().labelEnergyBoost)},
                  {.label = "happiness a week", .value = "+" + shortNumber(state().labelMoraleBoost)},
                  {.label = "all staff, a week", .value = currency(spend * staff)}}});
  view.add(Text{.text = state().myLabelName +
                        " is committed to employee experience and world class artist management. All weekly bonuses "
                        "are per employee."});
  view.add(Heading{"Energy"});
  addPerks(view, state(), true);
  view.add(Heading{"Happiness"});
  addPerks(view, state(), false);
  view.add(caption(currency(spend) + " a week for each employee"));
  view.help = Help{.title = "Why perks",
                   .text =
                       "Every employee burns energy each week, and happiness half as fast. Perks are the only lasting "
                       "answer: what they give comes back each week to everybody. They are paid with the week, for "
                       "each employee, and switching them costs nothing."};
}

}  // namespace backbeat
