#include "life/screens/profile_partner_detail.h"

#include <algorithm>

#include "core/money.h"
#include "core/view_words.h"
#include "life/partner.h"

namespace backbeat {

namespace {

Row fact(const char* glyph, const char* title, std::string value) {
  return {.picture = icon(glyph), .title = title, .value = std::move(value)};
}

std::string listed(const std::vector<std::string>& interests) {
  std::string all;
  for (const std::string& interest : interests) all += (all.empty() ? "" : ", ") + interest;
  return all;
}

bool hasChildAtHome(const GameState& state) {
  return std::any_of(state.saveAllChildList.begin(), state.saveAllChildList.end(),
                     [](const Child& child) { return child.typeOfRelationship >= 1; });
}

}  // namespace

Outcome ProfilePartnerDetail::act(const Action& action) {
  return action.id == "goToEditPartnerName" ? goTo(action.id) : Outcome{};
}

View ProfilePartnerDetail::view() const {
  View view{.title = "Profile", .theme = Theme::love};
  const auto position = partnerPosition(state());
  if (!position) {
    view.add(EmptyHint{.icon = "heart", .text = "You are single."});
    return view;
  }
  const Matches& partner = state().saveAllMatchesList[*position];
  const bool isFamily = isMarried(partner) && hasChildAtHome(state());
  view.add(Cover{.picture = faceNow(state(), partner),
                 .title = partner.name,
                 .text = std::to_string(ageNow(state(), partner)) + " years old\n" + partner.matchTagline});
  Rows rows;
  rows.items = {fact("heart", "Status", isFamily ? "Married with Kids" : statusText(partner)),
                fact("calendar", "Together", lengthText(weeksTogether(state(), partner))),
                fact("bolt", "Temper", temperText(partner.maintenance)),
                fact("briefcase", "Occupation", partner.occupation),
                fact("cash", "Earnings a week", currency(partner.weeklyEarnings)),
                fact("star", "Rating", std::to_string(ratingOf(partner)) + " of 10")};
  rows.items.push_back({.picture = icon("games"), .title = "Interests", .subtitle = listed(partner.interests)});
  view.add(std::move(rows));
  view.add(Rows{.items = {wayTo("goToEditPartnerName", "pencil", "Change the Name")}});
  return view;
}

}  // namespace backbeat
