#include "life/screens/adoption_detail_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "life/children.h"
#include "life/parenthood.h"
#include "life/screens/family_words.h"

namespace backbeat {

Outcome AdoptionDetailViewController::open() {
  child_ = drawAdoption(game_);
  return {};
}

Outcome AdoptionDetailViewController::act(const Action& action) {
  return action.id == "adoptButton" ? adopt(game_, child_) : Outcome{};
}

View AdoptionDetailViewController::view() const {
  View view{.title = "Adoption", .subtitle = "Somebody waits for a family", .theme = Theme::family};
  const Picture scene = drawn(Picture::Kind::scene, sceneOf(state(), child_), child_.name);
  view.add(Poster{.pictures = {scene, portraitOf(state(), child_)},
                  .title = child_.name,
                  .text = "Age: " + std::to_string(ageOf(state(), child_)) + "\nCould be your " +
                          (child_.gender == daughter ? "daughter" : "son")});
  view.add(talentBars(child_, ""));
  view.add(
      Rows{.items = {
               {.picture = icon("bolt"), .title = "Weekly Energy: ", .value = std::to_string(child_.weeklyEnergyCost)},
               {.picture = icon("cash"), .title = "Weekly Expense: ", .value = currency(child_.weeklyFinancialCost)}}});
  view.add(caption("The adoption process costs " + currency(adoptionCost.dollars) + " if the adoption is approved."));
  view.mainAction = Button{.id = "adoptButton", .label = "ADOPT", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
