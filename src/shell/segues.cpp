#include "shell/segues.h"

#include "shell/export_reminder.h"
#include "shell/navigator.h"
#include "shell/screens/about_view_controller.h"
#include "shell/screens/restore_view_controller.h"
#include "shell/screens/settings_view_controller.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue shellSegues[] = {
    {"goToSettings", "SettingsViewController", push, makeScreen<SettingsViewController>},
    {"goToRestore", "RestoreViewController", push, makeScreen<RestoreViewController>},
    {"goToAbout", "AboutViewController", push, makeScreen<AboutViewController>},
};

constexpr MenuLine shellMenu[] = {
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

const Room shellRoom = {.segues = shellSegues, .menu = shellMenu, .addNeeds = addNeeds};

}  // namespace backbeat
