#include "career/screens/lifestyle_choices_view_controller.h"

#include "core/money.h"

namespace backbeat {

namespace {

constexpr std::string_view confirmOption = "confirmOption";
constexpr std::string_view confirmClear = "confirmClear";

std::string boostNoun(const LifestyleCategory& category) {
  return category.givesVirality() ? "virality" : "max energy";
}

Row currentRow(const GameState& state, const LifestyleCategory& category) {
  const auto entry = lifestyleEntry(state, category);
  return {.picture = icon(std::string(category.icon)),
          .title = std::string(category.title) + " Weekly Expenses: ",
          .subtitle = entry ? entry->title : "Nothing chosen yet",
          .value = currency(entry ? entry->amount : 0),
          .note = entry ? "+" + std::to_string(entry->energyBoost) + " " + boostNoun(category) : ""};
}

Row optionRow(const LifestyleCategory& category, size_t number, const std::string& chosen) {
  const LifestyleOption& option = category.options[number];
  return {.title = std::string(option.title),
          .subtitle = currency(option.cost) + " a week",
          .value = "+" + std::to_string(option.energyBoost),
          .note = boostNoun(category),
          .price = option.firstPayment(),
          .selected = chosen == option.title,
          .id = "option:" + std::to_string(number)};
}

}  // namespace

LifestyleChoicesViewController::LifestyleChoicesViewController(Game& game, int64_t category) : Screen(game) {
  for (const LifestyleCategory& known : lifestyleCategories) {
    if (known.typeOfExpense == category) category_ = &known;
  }
}

Outcome LifestyleChoicesViewController::act(const Action& action) {
  if (!category_) return {};
  if (action.id == "clearExpense") return askToClearLifestyle(state(), *category_, {std::string(confirmClear), ""});
  if (action.id == confirmClear) return clearLifestyleExpense(game_, *category_);
  const auto number = optionNumber(action.argument(), category_->options.size());
  if (!number) return {};
  const LifestyleOption& option = category_->options[*number];
  if (action.verb() == "option") {
    return askForLifestyle(state(), option, category_->givesVirality(),
                           {std::string(confirmOption) + ":" + std::to_string(*number), ""});
  }
  if (action.verb() == confirmOption) return chooseLifestyle(game_, *category_, option);
  return {};
}

View LifestyleChoicesViewController::view() const {
  View view;
  if (!category_) {
    view.title = "Lifestyle";
    view.add(EmptyHint{.icon = "life", .text = "There is nothing to choose here."});
    return view;
  }
  view.title = category_->title;
  view.subtitle = category_->description;
  view.add(Rows{{currentRow(state(), *category_)}});
  view.add(Heading{"Options"});
  const auto entry = lifestyleEntry(state(), *category_);
  Rows rows;
  for (size_t i = 0; i < category_->options.size(); ++i) {
    rows.items.push_back(optionRow(*category_, i, entry ? entry->title : ""));
  }
  view.add(std::move(rows));
  Button clear{.id = "clearExpense", .label = "Clear expense"};
  if (entry) {
    clear.style = Button::Style::destructive;
  } else {
    clear.tone = Tone::locked;
  }
  view.add(std::move(clear));
  view.help =
      Help{.title = "How you live",
           .text =
               "A choice is paid at once, and then again every week. What it gives is yours at once, and goes again "
               "when you choose something else or clear the expense."};
  return view;
}

}  // namespace backbeat
