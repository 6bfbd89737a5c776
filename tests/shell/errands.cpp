#include "play/errands.h"

namespace backbeat {
namespace {

const RoomErrands errands({
    {"restart and go back",
     {"rich", "mid-career", "in debt"},
     {{"Home"},
      {"goToSettings"},
      {"restartButton"},
      {"Restart"},
      {"Home"},
      {"goToSettings"},
      {"goToRestore"},
      {"ask"},
      {"Restore"}}},
    {"delete a copy",
     {"rich"},
     {{"Home"},
      {"goToSettings"},
      {"restartButton"},
      {"Restart"},
      {"Home"},
      {"goToSettings"},
      {"goToRestore"},
      {"ask"},
      {"Delete copy"},
      {"Delete"}}},
    {"carry the career over", {"new", "talkative"}, {{"Home"}, {"goToSettings"}, {"exportCareer"}}},
    {"keep a copy of a new year", {"rich"}, {{"Home"}, {"Another year!"}}, 60},
    {"bring a career in", {"new", "signed"}, {{"Home"}, {"goToSettings"}, {"importCareer"}}},
});

}  // namespace
}  // namespace backbeat
