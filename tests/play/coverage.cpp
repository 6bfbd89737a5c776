#include "play/coverage.h"

namespace backbeat {

namespace {

void keepShorter(std::map<size_t, std::vector<std::string>>& ways, size_t tab, const std::vector<std::string>& way) {
  const auto [known, isNew] = ways.try_emplace(tab, way);
  const auto length = [](const std::vector<std::string>& one) { return std::pair(one.size(), one); };
  if (!isNew && length(way) < length(known->second)) known->second = way;
}

}  // namespace

void Coverage::add(const Coverage& other) {
  for (const auto& [segue, count] : other.segues) segues[segue] += count;
  for (const auto& [action, count] : other.actions) actions[action] += count;
  alerts.insert(other.alerts.begin(), other.alerts.end());
  unknownSegues.insert(other.unknownSegues.begin(), other.unknownSegues.end());
  for (const auto& [segue, byTab] : other.ways) {
    for (const auto& [tab, way] : byTab) keepShorter(ways[segue], tab, way);
  }
}

void Coverage::noteWay(const Shown& shown, std::map<int64_t, std::string>& segueOf) {
  segueOf[shown.key] = shown.segue;
  if (shown.modal) return;
  std::vector<std::string> way;
  for (const int64_t key : shown.stack) {
    const auto known = segueOf.find(key);
    if (known == segueOf.end()) return;  // it was opened on the way to another and nobody has seen it
    way.push_back(known->second);
  }
  keepShorter(ways[std::string(shown.segue)], shown.tab, way);
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
