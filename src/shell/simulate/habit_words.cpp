#include "shell/simulate/habit_words.h"

#include <charconv>

#include "core/view_find.h"

namespace backbeat {

bool hasEnergy(Player& player, int64_t energy) { return player.state().totalEnergyAvailable >= energy; }

int64_t numberIn(std::string_view text) {
  const size_t begin = text.find_first_of("0123456789");
  int64_t number = 0;
  if (begin != text.npos) std::from_chars(text.data() + begin, text.data() + text.size(), number);
  return number;
}

double dollarsOf(const std::optional<Price>& price) { return price ? price->dollars : 0; }

double chooseBest(Player& player, const std::string& list, double budget) {
  const Choice choice = blockWithId<Choice>(player.view(), list);
  if (choice.id.empty()) return 0;
  size_t best = 0;
  for (size_t i = 1; i < choice.options.size(); ++i) {
    const Option& option = choice.options[i];
    if (dollarsOf(option.price) > budget) continue;
    if (numberIn(option.note) > numberIn(choice.options[best].note)) best = i;
  }
  const double cost = dollarsOf(choice.options[best].price);
  player.press(list, std::to_string(best));
  return cost;
}

void openSong(Player& player, int64_t songId) {
  player.tab(musicTab);
  player.press("kind", "0");
  player.press("song:" + std::to_string(songId));
}

}  // namespace backbeat
