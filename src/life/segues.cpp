#include "life/segues.h"

#include "life/news.h"
#include "life/partner.h"
#include "life/screens/edit_partner_name_view_controller.h"
#include "life/screens/engagement_ring_view_controller.h"
#include "life/screens/fxy_dating_view_controller.h"
#include "life/screens/fxy_match_list_view_controller.h"
#include "life/screens/fxy_matching_view_controller.h"
#include "life/screens/fxy_you_matched_with_view_controller.h"
#include "life/screens/profile_partner_detail.h"
#include "life/screens/relationship_home_view_controller.h"
#include "life/screens/relationship_match_view_controller.h"

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
};

}  // namespace

const Room lifeRoom = {.segues = segues, .menu = menu, .addNeeds = addLifeNeeds, .addNews = addLifeNews};

}  // namespace backbeat
