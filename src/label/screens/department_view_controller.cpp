#include "label/screens/department_view_controller.h"

#include "career/studio.h"
#include "career/traits.h"
#include "core/money.h"
#include "core/view_words.h"
#include "label/hiring.h"
#include "label/screens/label_words.h"
#include "label/staff.h"

namespace backbeat {

namespace {

struct Bonus {
  std::string title;
  std::string value;
  std::string text;
};

Bonus bonusOf(const GameState& state, int64_t code) {
  const std::string& label = state.myLabelName;
  switch (code) {
    case department::artistsAndRepertoire:
      return {"Artist Happiness Bonus", shortNumber(state.labelArtistHappinessBonus),
              "Artist and Repertoire is responsible for scouting new talent, preparing the production team for the new "
              "artist and is your liaison between the artist and " +
                  label + ". Your recruiting trait is included in this department's rating."};
    case department::legal:
      return {"Negotiation Bonus", std::to_string(state.labelNegotiationBonus) + "%",
              "Legal is responsible for all contract related activities. This includes contract negotiation with " +
                  label +
                  "'s artists, music streaming services, licensing deals, and legal disputes. Your negotiation trait "
                  "is included in this department's rating."};
    case department::production:
      return {"Virality Bonus", std::to_string(state.labelViralityBoost),
              "Production is responsible for all audio recording, production, and artist coaching for " + label +
                  ". In addition, they work hand in hand with A&R to develop artists. Your studio rating is included "
                  "in this department's rating."};
    case department::publicity:
      return {"Marketing Bonus", "+" + std::to_string(state.labelMarketingBoost),
              "Publicity and Promotions is responsible for all marketing, public relations and creative functions. "
              "These include artwork, physical and traditional marketing, online and social branding, radio "
              "broadcasting, and promotional content. Your marketing trait is included in this department's rating."};
    default:
      return {"Revenue Bonus", shortNumber(state.labelRevenueBonus),
              "Sales and Distribution is responsible for sales related to artist's work. This includes licensing "
              "agreements, physical album distribution, merch, appearances and endorsements. Your sales trait is "
              "included in this department's rating."};
  }
}

/// Why the department rates otherwise than the fader of its staff on the label's home.
std::string whatYouBring(const GameState& state, const Department& department, const DepartmentStanding& standing) {
  std::string own = "Your studio of " + std::to_string(studioRating(state)) + " is counted in";
  for (const Trait& trait : traits) {
    if (!department.trait || trait.level != department.trait) continue;
    own = "Your " + std::string(trait.title) + " of " + std::to_string(state.*trait.level) + " is counted in, doubled";
  }
  return "Your staff rate " + std::to_string(standing.rating) + ", as their fader says. " + own + ", and makes it " +
         std::to_string(standing.studioRating) + ".";
}

Card employeeCard(const GameState& state, const Employee& employee) {
  const std::string id = std::to_string(employee.employeeId);
  return {.picture = staffPortrait(employee),
          .title = currency(static_cast<double>(employee.employeeSalary)) + " a year",
          .text = currency(static_cast<double>(weeklyPay(employee.employeeSalary))) + " a week\n" +
                  std::to_string(employee.employeeBurnRate) + " BURN/WK",
          .tone = toneOfBand(static_cast<double>(employee.employeeRating)),
          .value = std::to_string(employee.employeeRating) + " rating",
          .meters = {levelMeter("Energy", employee.employeeEnergy), levelMeter("Happiness", employee.employeeMorale)},
          .buttons = {{.id = "motivate:" + id, .label = "Motivate", .price = motivationCost(state)},
                      {.id = "fire:" + id, .label = "Fire", .style = Button::Style::destructive}}};
}

}  // namespace

Outcome DepartmentViewController::press(const Action& action) {
  if (action.id == "hire") return goTo("goToLabelHireStaff");
  const auto employee = wholeNumber(action.argument());
  if (!employee) return {};
  if (action.verb() == "fire") return askToFire(state(), *employee, {"confirmFire:" + std::to_string(*employee), ""});
  if (action.verb() == "confirmFire") return fireEmployee(game_, *employee);
  if (action.verb() == "motivate") return motivateEmployee(game_, *employee);
  return {};
}

void DepartmentViewController::describe(View& view) const {
  if (!exists()) {
    view.add(EmptyHint{.icon = "label", .text = "Your label has no such department."});
    return;
  }
  const DepartmentStanding standing = departmentRatings(state()).departments[static_cast<size_t>(code_)];
  const Bonus bonus = bonusOf(state(), code_);
  view.title = departments[static_cast<size_t>(code_)].name;
  view.subtitle = std::to_string(standing.staff) + " EMPLOYEE(S)";
  view.add(levelMeter(isUnderstaffed(state(), standing) ? "Department Rating (Understaffed)" : "Department Rating",
                      static_cast<double>(standing.studioRating)));
  if (standing.staff > 0) {
    view.add(caption(whatYouBring(state(), departments[static_cast<size_t>(code_)], standing)));
  }
  view.add(Tiles{{{.icon = "trend", .label = bonus.title, .value = bonus.value}}});
  view.add(Tiles{{{.icon = "people", .label = "Team", .value = std::to_string(standing.staff)},
                  {.icon = "mic", .label = "Artists", .value = std::to_string(activeArtists(state()))}}});
  view.add(Text{.text = bonus.text});
  view.add(Heading{"Team"});
  if (standing.staff > 0) {
    describeStaff(view);
  } else {
    view.add(EmptyHint{.icon = "people", .text = "Nobody works here yet. Whoever you hire first sets the rating."});
  }
  view.mainAction = Button{.id = "hire", .label = "Hire Staff", .style = Button::Style::primary};
  view.help =
      Help{.title = "How a department rates",
           .text =
               "Your staff's ratings and what you bring yourself make the department's rating, and its bonus follows "
               "when you come to the label the next time.\n\nOne of them can look after three artists. With more, "
               "all of them burn out faster."};
}

void DepartmentViewController::describeStaff(View& view) const {
  view.add(caption("Boost your employee's energy by +" + shortNumber(state().labelEnergyBoost) + " and happiness by +" +
                   shortNumber(state().labelMoraleBoost) + " for " + std::to_string(motivationCost(state()).energy) +
                   " energy. Upgrade your boosts in the benefit/culture tab. As your leadership grows, energy becomes "
                   "cheaper."));
  for (const Employee& employee : state().saveAllEmployeeList) {
    if (employee.employeeDepartmentCode == code_) view.add(employeeCard(state(), employee));
  }
}

}  // namespace backbeat
