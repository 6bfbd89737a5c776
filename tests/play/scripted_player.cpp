#include "play/scripted_player.h"

#include "shell/native/view_printer.h"

namespace backbeat {

namespace {

constexpr int64_t newYear2023 = 1'672'660'800'000;  // unix milliseconds
constexpr int64_t betweenPresses = 7'000;
constexpr int mostReportPresses = 20;

}  // namespace

ScriptedPlayer::ScriptedPlayer(uint64_t seed, std::vector<std::string>& problems)
    : now_(newYear2023),
      career_(store_, platform_, [this](const std::string& line) { lines_.push_back(line); }),
      problems_(problems) {
  career_.play(launchEvent(now_, seed));
}

void ScriptedPlayer::press(const std::string& id, const std::optional<std::string>& value) {
  if (!tryPress(id, value)) problems_.push_back("there is no " + id + " on " + screen());
}

bool ScriptedPlayer::tryPress(const std::string& id, const std::optional<std::string>& value) {
  const Shown shown = career_.session().shown();
  for (const Pressable& each : printScreen(career_.session().navigator(), shown, false).pressables) {
    if (each.action.id != id || each.screenKey == "alert") continue;
    act(each.screenKey, {id, value.value_or(each.action.value)});
    return true;
  }
  return false;
}

void ScriptedPlayer::tab(TabNumber number) {
  act("tabs", {"tab", std::to_string(number)});
  while (career_.session().shown().stack.size() > 1) act("nav", {"back", ""});
}

void ScriptedPlayer::settle() {
  for (Shown shown = career_.session().shown(); shown.alert; shown = career_.session().shown()) {
    act("alert", {std::to_string(shown.alert->key), "0"});
  }
}

void ScriptedPlayer::endTheWeek(bool takesChances) {
  act("nav", {"endTheWeekButton", ""});
  settle();
  for (const char* chance : {"eventButton1", "eventButton2", "eventButton3"}) {
    if (takesChances && tryPress(chance)) settle();
  }
  for (int presses = 0; career_.session().shown().modal; ++presses) {
    if (presses > mostReportPresses) return problems_.push_back("stuck on " + screen());
    press("closeButton");
    settle();
  }
}

std::string ScriptedPlayer::screen() { return std::string(career_.session().shown().screen); }

void ScriptedPlayer::act(const std::string& screenKey, const Action& action) {
  now_ += betweenPresses;
  career_.play(actEvent(now_, screenKey, action));
}

}  // namespace backbeat
