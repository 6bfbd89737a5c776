#include "life/segues.h"

#include "life/children.h"
#include "life/news.h"
#include "life/partner.h"
#include "life/screens/adoption_detail_view_controller.h"
#include "life/screens/child_detail_view_controller.h"
#include "life/screens/child_list_view_controller.h"
#include "life/screens/dynasty_detail_view_controller.h"
#include "life/screens/edit_child_name_view_controller.h"
#include "life/screens/edit_partner_name_view_controller.h"
#include "life/screens/engagement_ring_view_controller.h"
#include "life/screens/family_dynasty_view_controller.h"
#include "life/screens/fxy_dating_view_controller.h"
#include "life/screens/fxy_match_list_view_controller.h"
#include "life/screens/fxy_matching_view_controller.h"
#include "life/screens/fxy_you_matched_with_view_controller.h"
#include "life/screens/profile_partner_detail.h"
#include "life/screens/relationship_home_view_controller.h"
#include "life/screens/relationship_match_view_controller.h"
#include "life/screens/take_over_detail_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToFXYDating", "FXYDatingViewController", push, makeScreen<FXYDatingViewController>},
    {"goToFXYMatching", "FXYMatchingViewController", push, makeScreen<FXYMatchingViewController>},
    {"goToRelationshipMatch", "RelationshipMatchViewController", modal, makeScreen<RelationshipMatchViewController>},
    {"goToFxyMatchList", "FxyMatchListViewController", push, makeScreen<FxyMatchListViewController>},
    {"goToYouMatchedWith", "FXYYouMatchedWithViewController", push, makeScreenWithId<FXYYouMatchedWithViewController>},
    {"goToRelationshipHome", "RelationshipHomeViewController", push, makeScreen<RelationshipHomeViewController>},
    {"goToEngagementRing", "EngagementRingViewController", push, makeScreen<EngagementRingViewController>},
    {"goToProfilePartner", "ProfilePartnerDetail", push, makeScreen<ProfilePartnerDetail>},
    {"goToEditPartnerName", "EditPartnerNameViewController", push, makeScreen<EditPartnerNameViewController>},
    {"goToAdoptionDetail", "AdoptionDetailViewController", push, makeScreen<AdoptionDetailViewController>},
    {"goToChildList", "ChildListViewController", push, makeScreen<ChildListViewController>},
    {"goToChildDetail", "ChildDetailViewController", push, makeScreenWithId<ChildDetailViewController>},
    {"goToEditChildName", "EditChildNameViewController", push, makeScreenWithId<EditChildNameViewController>},
    {"goToTakeOverDetail", "TakeOverDetailViewController", push, makeScreenWithId<TakeOverDetailViewController>},
    {"goToFamilyDynasty", "FamilyDynastyViewController", push, makeScreen<FamilyDynastyViewController>},
    {"goToDynastyDetail", "DynastyDetailViewController", push, makeScreenWithId<DynastyDetailViewController>},
};

void describePartner(const Game& game, Row& row) {
  const auto position = partnerPosition(game.state);
  if (!position) return;
  const Matches& partner = game.state.saveAllMatchesList[*position];
  row.picture = faceNow(game.state, partner);
  row.subtitle = partner.name + " · " + statusText(partner);
}

void describeDating(const Game& game, Row& row) {
  const size_t waiting = matchesWaiting(game.state);
  if (waiting == 0) return;
  row.value = std::to_string(waiting);
  row.note = waiting == 1 ? "match waits" : "matches wait";
}

bool hasChildren(const Game& game) { return !game.state.saveAllChildList.empty(); }

/// The youngest that is there, and how many there are.
void describeChildren(const Game& game, Row& row) {
  const RecordList<Child>& children = game.state.saveAllChildList;
  row.value = std::to_string(children.size());
  row.note = std::to_string(game.state.childEnergyCost) + " energy a week";
  row.subtitle = children.back().name + ", " + standingText(game.state, children.back());
  row.picture = portraitOf(game.state, children.back());
}

bool hasAncestors(const Game& game) { return !game.state.saveAllLegacyList.empty(); }

void describeDynasty(const Game& game, Row& row) {
  row.subtitle = "In memory of " + game.state.saveAllLegacyList.back().name;
}

constexpr MenuLine menu[] = {
    {.tab = lifeTab,
     .section = "Love",
     .order = 240,
     .icon = "heart",
     .title = "Relationship",
     .subtitle = "Single",
     .segue = "goToRelationshipHome",
     .describe = describePartner},
    {.tab = lifeTab,
     .section = "Love",
     .order = 250,
     .icon = "message",
     .title = "FXY",
     .subtitle = "The dating app",
     .segue = "goToFXYDating",
     .describe = describeDating},
    {.tab = lifeTab,
     .section = "Family",
     .order = 260,
     .icon = "family",
     .title = "Children",
     .segue = "goToChildList",
     .shown = hasChildren,
     .describe = describeChildren},
    {.tab = lifeTab,
     .section = "Family",
     .order = 270,
     .icon = "document",
     .title = "Dynasty",
     .segue = "goToFamilyDynasty",
     .shown = hasAncestors,
     .describe = describeDynasty},
};

}  // namespace

const Room lifeRoom = {
    .name = "life", .segues = segues, .menu = menu, .addNeeds = addLifeNeeds, .addNews = addLifeNews};

}  // namespace backbeat
