#include "label/segues.h"

#include "career/studio.h"
#include "core/money.h"
#include "label/artist_creation.h"
#include "label/launch.h"
#include "label/news.h"
#include "label/scouting.h"
#include "label/screens/artist_roi_view_controller.h"
#include "label/screens/create_label_view_controller.h"
#include "label/screens/create_signed_artist_view_controller.h"
#include "label/screens/demo_and_offer_view_controller.h"
#include "label/screens/department_view_controller.h"
#include "label/screens/find_new_artists_view_controller.h"
#include "label/screens/label_benefits_view_controller.h"
#include "label/screens/label_capacity_view_controller.h"
#include "label/screens/label_detail_view_controller.h"
#include "label/screens/label_hire_staff_view_controller.h"
#include "label/screens/signed_artist_detail_view_controller.h"
#include "label/screens/signed_artist_song_list_view_controller.h"
#include "label/screens/signed_artists_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

std::unique_ptr<Screen> makeOfferScreen(Game& game, std::string_view artist) {
  return std::make_unique<DemoAndOfferViewController>(game, artist);
}

constexpr Segue segues[] = {
    {"goToCreateLabel", "CreateLabelViewController", push, makeScreen<CreateLabelViewController>, beginLaunch},
    {"goToLabelDetail", "LabelDetailViewController", push, makeScreen<LabelDetailViewController>, openLabelHome},
    {"goToLabelCapacity", "LabelCapacityViewController", push, makeScreen<LabelCapacityViewController>},
    {"goToLabelBenefits", "LabelBenefitsViewController", push, makeScreen<LabelBenefitsViewController>},
    {"goToLabelHireStaff", "LabelHireStaffViewController", push, makeScreen<LabelHireStaffViewController>},
    {"goToDepartment", "DepartmentViewController", push, makeScreenWithId<DepartmentViewController>},
    {"goToFindNewArtists", "FindNewArtistsViewController", push, makeScreen<FindNewArtistsViewController>,
     openScouting},
    {"goToDemoAndOffer", "DemoAndOfferViewController", push, makeOfferScreen},
    {"goToCreateSignedArtist", "CreateSignedArtistViewController", push, makeScreen<CreateSignedArtistViewController>,
     beginArtist},
    {"goToSignedArtists", "SignedArtistsViewController", push, makeScreen<SignedArtistsViewController>},
    {"goToSignedArtistDetail", "SignedArtistDetailViewController", push,
     makeScreenWithId<SignedArtistDetailViewController>},
    {"goToSignedArtistSongList", "SignedArtistSongListViewController", push,
     makeScreenWithId<SignedArtistSongListViewController>},
    {"goToArtistRoi", "ArtistRoiViewController", push, makeScreen<ArtistRoiViewController>},
};

bool hasLabel(const Game& game) { return game.state.isLabelLaunched >= 1; }
bool hasNoLabel(const Game& game) { return !hasLabel(game); }

void describeLabel(const Game& game, Row& row) { row.subtitle = game.state.myLabelName; }

void describeStart(const Game& game, Row& row) {
  const int64_t rating = studioRating(game.state);
  row.subtitle = rating < studioForLabel
                     ? "Wants a studio of " + std::to_string(studioForLabel) + "; yours rates " + std::to_string(rating)
                     : currency(launchCost.dollars) + ", and artists of your own";
}

constexpr MenuLine menu[] = {
    {.tab = musicTab,
     .section = "My label",
     .order = 310,
     .icon = "label",
     .title = "Start a Label",
     .segue = "goToCreateLabel",
     .id = "labelButton",
     .shown = hasNoLabel,
     .describe = describeStart},
    {.tab = musicTab,
     .section = "My label",
     .order = 310,
     .icon = "label",
     .title = "My Label",
     .segue = "goToLabelDetail",
     .id = "labelButton",
     .shown = hasLabel,
     .describe = describeLabel},
    {.tab = businessTab,
     .section = "Companies",
     .order = 310,
     .icon = "label",
     .title = "MY LABEL",
     .segue = "goToLabelDetail",
     .shown = hasLabel,
     .describe = describeLabel},
};

}  // namespace

const Room labelRoom = {
    .name = "label", .segues = segues, .menu = menu, .addNeeds = addLabelNeeds, .addNews = addLabelNews};

}  // namespace backbeat
