#include "life/parenthood.h"

#include <algorithm>
#include <charconv>

#include "core/calendar.h"
#include "core/purse.h"
#include "life/children.h"
#include "life/dark_skin.h"
#include "life/parenthood_pools.h"
#include "life/partner.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

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

/// "femalechildw4.png": the plain family has three pictures, the others six.
std::string drawPicture(Random& random, int64_t gender, const std::string& family) {
  const std::string kind = gender == daughter ? "femalechild" : "malechild";
  return kind + family + std::to_string(random.integer(1, family.empty() ? 3 : 6)) + ".png";
}

void drawTalents(Random& random, Child& child) {
  for (const Talent& talent : talents) child.*talent.level = random.integer(-10, 10);
}

Child childOf(const GameState& state) {
  Child child;
  child.birthYear = state.yearNumber;
  child.birthWeek = state.weekNumber;
  child.birthWeekForTracking = state.weekNumberForTracking;
  child.artistName = state.myArtistsName;
  child.admiration = mostAdmiration;
  child.typeOfRelationship = kinship::family;
  return child;
}

int64_t drawWeeklyEnergy(Random& random) { return random.integer(3, 10); }
double drawWeeklyMoney(Random& random) { return random.uniformDouble(75, 250); }

void drawFuture(Random& random, Child& child) {
  child.totalEnergyMax = random.integer(100, 135);
  child.weeklyAdmirationLoss = random.uniformDouble(0.25, 1.25);
  child.ageofDeath = random.integer(65, 90);
}

void join(Game& game, Child child) {
  child.id = ++game.state.childId;
  game.state.childEnergyCost += child.weeklyEnergyCost;
  game.state.saveAllChildList.append(std::move(child));
  game.save(&GameState::saveAllChildList, &GameState::childEnergyCost, &GameState::childId);
}

/// Whoever is more than dated is the other parent.
std::string otherParent(const GameState& state) {
  const RecordList<Matches>& matches = state.saveAllMatchesList;
  const size_t found = matches.find([](const Matches& match) { return match.relationshipState > love::engaged; });
  return found == matches.size() ? "" : matches[found].name;
}

}  // namespace

void becomeParentByBirth(Game& game, const Matches& partner) {
  Random& random = game.random;
  Child child = childOf(game.state);
  child.name = newbornName;
  child.partnerName = partner.name;
  child.gender = random.integer(0, 1);
  child.relationship = child.gender == daughter ? "Daughter" : "Son";
  child.weeklyEnergyCost = drawWeeklyEnergy(random);
  child.weeklyFinancialCost = drawWeeklyMoney(random);
  child.imageString = drawPicture(random, child.gender, hasDarkSkin(partner.matchImage) ? "" : "w");
  drawTalents(random, child);
  drawFuture(random, child);
  join(game, std::move(child));
}

Child drawAdoption(Game& game) {
  Random& random = game.random;
  Child child = childOf(game.state);
  child.partnerName = otherParent(game.state);
  child.gender = random.coin();
  child.relationship = child.gender == daughter ? "Adopted Daughter" : "Adopted Son";
  const std::string family = random.coin() == 0 ? "b" : "w";
  child.imageString = drawPicture(random, child.gender, family);
  child.weeklyFinancialCost = drawWeeklyMoney(random);
  child.weeklyEnergyCost = drawWeeklyEnergy(random);
  const int64_t age = random.integer(1, 5);
  child.birthYear -= age;
  child.birthWeekForTracking -= age * 52;
  child.name = child.gender == daughter ? random.element(adoptedGirls) : random.element(adoptedBoys);
  drawTalents(random, child);
  drawFuture(random, child);
  child.totalEnergyMax -= age;
  return child;
}

Outcome adopt(Game& game, const Child& child) {
  if (!hasCash(game.state, adoptionCost)) {
    return noCash("\nYou do not have enough cash for due diligence and legal fees to finalize the adoption.");
  }
  constexpr int64_t lastRefusal = 5;
  Outcome outcome;
  if (game.random.integer(0, 10) <= lastRefusal) {
    outcome = news<"😃 BITTER SWEET 😭">("\n" + child.name + " was adopted by another family! ", Feedback::warning);
  } else {
    pay(game, adoptionCost);
    join(game, child);
    grantAchievement(game, achievement::openHeart);
    stateChanged(game);
    outcome = news<"👪 Welcome Home 👪">("\n" + child.name + " is a part of your family now.");
  }
  outcome += closeScreen();
  return outcome;
}

}  // namespace backbeat
