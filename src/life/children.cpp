#include "life/children.h"

#include <algorithm>
#include <charconv>

#include "life/dark_skin.h"

namespace backbeat {

namespace {

constexpr int64_t daughter = 1;

/// Whether the picture, "woman12.png" or "man7.png", is drawn with dark skin.
bool hasDarkSkin(std::string_view matchImage) {
  const auto isListed = [&](std::string_view kind, const auto& numbers) {
    if (!matchImage.starts_with(kind)) return false;
    int64_t number = 0;
    const std::string_view rest = matchImage.substr(kind.size());
    std::from_chars(rest.data(), rest.data() + rest.size(), number);
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
  };
  return isListed("woman", femaleDarkSkin) || isListed("man", maleDarkSkin);
}

std::string drawPicture(Random& random, int64_t gender, bool isDark) {
  const std::string kind = gender == daughter ? "femalechild" : "malechild";
  const int64_t number = isDark ? random.integer(1, 3) : random.integer(1, 6);
  return kind + (isDark ? "" : "w") + std::to_string(number) + ".png";
}

}  // namespace

void becomeParentByBirth(Game& game, const Matches& partner) {
  GameState& state = game.state;
  Random& random = game.random;
  Child child;
  child.id = ++state.childId;
  child.name = "Newborn";
  child.birthYear = state.yearNumber;
  child.birthWeek = state.weekNumber;
  child.birthWeekForTracking = state.weekNumberForTracking;
  child.partnerName = partner.name;
  child.artistName = state.myArtistsName;
  child.admiration = 100;
  child.typeOfRelationship = 1;
  child.gender = random.integer(0, 1);
  child.relationship = child.gender == daughter ? "Daughter" : "Son";
  child.weeklyEnergyCost = random.integer(3, 10);
  child.weeklyFinancialCost = random.uniformDouble(75, 250);
  child.imageString = drawPicture(random, child.gender, hasDarkSkin(partner.matchImage));
  for (int64_t Child::*trait :
       {&Child::songWriting, &Child::virality, &Child::vocals, &Child::rhythm, &Child::charisma}) {
    child.*trait = random.integer(-10, 10);
  }
  child.totalEnergyMax = random.integer(100, 135);
  child.weeklyAdmirationLoss = random.uniformDouble(0.25, 1.25);
  child.ageofDeath = random.integer(65, 90);
  state.childEnergyCost += child.weeklyEnergyCost;
  state.saveAllChildList.append(std::move(child));
  game.save(&GameState::saveAllChildList, &GameState::childEnergyCost, &GameState::childId);
}

}  // namespace backbeat
