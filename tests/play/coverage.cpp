#include "play/coverage.h"

namespace backbeat {

void Coverage::add(const Coverage& other) {
  for (const auto& [segue, count] : other.segues) segues[segue] += count;
  for (const auto& [action, count] : other.actions) actions[action] += count;
  alerts.insert(other.alerts.begin(), other.alerts.end());
  unknownSegues.insert(other.unknownSegues.begin(), other.unknownSegues.end());
}

void Coverage::see(const Shown& shown, const std::vector<Pressable>& offered) {
  const std::string screen(shown.screen);
  ++segues[std::string(shown.segue)];
  if (shown.alert) alerts.insert(shown.alert->alert.from.name());
  for (const Pressable& pressable : offered) {
    if (pressable.screenKey != "alert") actions.try_emplace({screen, std::string(pressable.action.verb())}, 0);
  }
}

void Coverage::press(const Shown& shown, const Pressable& pressed) {
  if (pressed.screenKey != "alert") ++actions[{std::string(shown.screen), std::string(pressed.action.verb())}];
}

std::vector<std::string> Coverage::neverPressed() const {
  std::vector<std::string> names;
  for (const auto& [action, count] : actions) {
    if (count == 0) names.push_back(action.first + " " + action.second);
  }
  return names;
}

}  // namespace backbeat
