#include "shell/segues.h"

#include "shell/export_reminder.h"
#include "shell/navigator.h"
#include "shell/screens/about_view_controller.h"
#include "shell/screens/artist_profile_view_controller.h"
#include "shell/screens/packs_view_controller.h"
#include "shell/screens/restore_view_controller.h"
#include "shell/screens/settings_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue shellSegues[] = {
    {"goToArtistProfile", "ArtistProfileViewController", push, makeScreen<ArtistProfileViewController>},
    {"goToPacks", "PacksViewController", push, makeScreen<PacksViewController>},
    {"goToSettings", "SettingsViewController", push, makeScreen<SettingsViewController>},
    {"goToRestore", "RestoreViewController", push, makeScreen<RestoreViewController>},
    {"goToAbout", "AboutViewController", push, makeScreen<AboutViewController>},
};

constexpr MenuLine shellMenu[] = {
    {.tab = musicTab,
     .section = "Reach",
     .order = 140,
     .icon = "person",
     .title = "Artist Profile",
     .subtitle = "What your listeners see",
     .segue = "goToArtistProfile"},
    {.tab = homeTab,
     .section = "More",
     .order = 180,
     .icon = "gift",
     .title = "Packs",
     .subtitle = "Energy and cash, without the work",
     .segue = "goToPacks"},
    {.tab = homeTab, .section = "More", .order = 190, .icon = "settings", .title = "Settings", .segue = "goToSettings"},
};

void addNeeds(const Game& game, std::vector<Need>& needs) {
  if (!exportIsDue(game)) return;
  needs.push_back({.priority = 100,
                   .picture = icon("document"),
                   .title = "Another year!",
                   .subtitle = "A file of your career is safe whatever happens to this device",
                   .segue = std::string(exportCareerSegue)});
}

}  // namespace

const Room shellRoom = {.name = "shell", .segues = shellSegues, .menu = shellMenu, .addNeeds = addNeeds};

}  // namespace backbeat
