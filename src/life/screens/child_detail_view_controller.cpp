#include "life/screens/child_detail_view_controller.h"

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "life/child_actions.h"
#include "life/children.h"
#include "life/screens/family_words.h"

namespace backbeat {

namespace {

std::string ageLines(const GameState& state, const Child& child) {
  if (!isInFamily(child)) return standingText(state, child);
  const std::string school = schoolOf(state, child);
  return ageText(state, child) + (school.empty() ? "" : "\n" + school);
}

std::string parentsOf(const Child& child) {
  return child.artistName + (child.partnerName.empty() ? "" : " & " + child.partnerName);
}

Row fact(const char* glyph, const char* title, std::string value) {
  return {.picture = icon(glyph), .title = title, .value = std::move(value)};
}

}  // namespace

Outcome ChildDetailViewController::act(const Action& action) {
  if (action.id == "complimentChild") return complimentChild(game_, selectedChildIndex_);
  if (action.id == "playMusic") return playMusic(game_, selectedChildIndex_);
  if (action.id == "qualityTimeWithChild") return qualityTimeWithChild(game_, selectedChildIndex_);
  if (action.id == "abandonChild") return askToAbandon(game_, selectedChildIndex_, {"abandonConfirmed", ""});
  if (action.id == "abandonConfirmed") return abandonChild(game_, selectedChildIndex_);
  for (const char* way : {"goToEditChildName", "goToTakeOverDetail"}) {
    if (action.id == way) return goTo(way, std::to_string(selectedChildIndex_));
  }
  return {};
}

View ChildDetailViewController::view() const {
  View view{.title = "Child", .theme = Theme::family};
  const auto position = childPosition(state(), selectedChildIndex_);
  if (!position) {
    view.add(EmptyHint{.icon = "pram", .text = "There is no such child."});
    return view;
  }
  describe(view, state().saveAllChildList[*position]);
  return view;
}

void ChildDetailViewController::describe(View& view, const Child& child) const {
  view.title = child.name;
  view.subtitle = child.relationship;
  const Picture scene = drawn(Picture::Kind::scene, sceneOf(state(), child), parentsOf(child));
  view.add(Poster{.pictures = {scene, portraitOf(state(), child)},
                  .title = child.name,
                  .text = ageLines(state(), child),
                  .mood = isInFamily(child) ? Poster::Mood::plain : Poster::Mood::mourn});
  if (isInFamily(child)) describeActions(view, child);
  view.add(talentBars(child, isInFamily(child) ? "heir to " + state().myArtistsName : ""));
  describeFacts(view, child);
  if (isInFamily(child)) {
    view.add(Button{
        .id = "abandonChild", .label = "Abandon", .price = abandonmentCost, .style = Button::Style::destructive});
  }
  if (mayTakeOver(state(), child)) {
    view.mainAction = Button{.id = "goToTakeOverDetail", .label = "Take Over", .style = Button::Style::primary};
  }
  view.help = childrenHelp();
}

void ChildDetailViewController::describeActions(View& view, const Child& child) const {
  view.add(Meter{.label = "Admiration",
                 .value = std::to_string(truncate(child.admiration)),
                 .share = shareOf(child.admiration, mostAdmiration),
                 .tone = toneOfBand(child.admiration)});
  view.add(
      Tiles{{{.icon = "message", .label = "Compliment", .id = "complimentChild", .price = childComplimentCost},
             {.icon = "mic", .label = "Play Music", .id = "playMusic", .price = playMusicCost},
             {.icon = "balloon", .label = "Quality Time", .id = "qualityTimeWithChild", .price = childQualityTimeCost},
             {.icon = "pencil", .label = "Rename", .note = "free", .id = "goToEditChildName"}}});
}

void ChildDetailViewController::describeFacts(View& view, const Child& child) const {
  Rows rows;
  rows.items.push_back({.picture = icon("people"), .title = "Parents:", .subtitle = parentsOf(child)});
  if (isInFamily(child)) {
    rows.items.push_back(fact("bolt", "Weekly Energy: ", std::to_string(child.weeklyEnergyCost)));
    rows.items.push_back(fact("cash", "Weekly Expense: ", currency(child.weeklyFinancialCost)));
    rows.items.push_back(fact("megaphone", "Followers: ", withCommas(child.followers)));
  }
  if (!child.occupation.empty()) rows.items.push_back(fact("briefcase", "Occupation: ", child.occupation));
  if (child.typeOfRelationship == kinship::dead) {
    rows.items.push_back({.picture = icon("tombstone"), .title = "Cause of Death: ", .subtitle = child.causeOfDeath});
  }
  view.add(std::move(rows));
}

}  // namespace backbeat
