#include "shell/segues.h"

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

}  // namespace

const Room shellRoom = {.segues = shellSegues, .menu = shellMenu};

}  // namespace backbeat
