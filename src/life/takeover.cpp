#include "life/takeover.h"

#include <algorithm>
#include <utility>

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/keep_aside.h"
#include "core/new_game.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/purse.h"
#include "core/segue.h"
#include "life/children.h"
#include "life/legacy.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

Outcome tooTired() { return noEnergy("\nYou do not have enough energy."); }

bool isTooTired(const GameState& state) { return !hasEnergy(state, {.energy = takeoverEnergy}); }

struct Skill {
  int64_t Child::*ofChild;
  int64_t GameState::*level;
  int64_t GameState::*energyCost;
};
constexpr Skill skills[] = {
    {&Child::vocals, &GameState::vocalRange, &GameState::vocalRangeEnergyCost},
    {&Child::songWriting, &GameState::songWriting, &GameState::songWritingEnergyCost},
    {&Child::rhythm, &GameState::rhythm, &GameState::rhythmEnergyCost},
    {&Child::charisma, &GameState::charisma, &GameState::charismaEnergyCost},
    {&Child::virality, &GameState::virality, &GameState::viralityEnergyCost},
};

void install(Game& game, const Child& heir, const Inheritance& inheritance) {
  GameState& state = game.state;
  state.myArtistsName = heir.name;
  state.totalFans = inheritance.followers;
  state.totalEnergyMax = inheritance.maxEnergy;
  earn(game, {.energy = inheritance.maxEnergy - state.totalEnergyAvailable,
              .dollars = static_cast<double>(inheritance.cash) - state.totalCashAvailable});
  for (const auto& [ofChild, level, energyCost] : skills) {
    state.*level = std::max<int64_t>(heir.*ofChild, 1);
    state.*energyCost = state.*level + 1;
    game.save(level, energyCost);
  }
  state.heirParentNames = heir.artistName + (heir.partnerName.empty() ? "" : "\n" + heir.partnerName);
  state.twitterHeaderImage.clear();
  state.saveRingImage.clear();
  bringPortrait(game, grownPortrait(heir));
  game.save(&GameState::myArtistsName, &GameState::totalFans, &GameState::totalEnergyMax, &GameState::heirParentNames,
            &GameState::twitterHeaderImage, &GameState::saveRingImage);
}

}  // namespace

Inheritance inheritanceOf(const GameState& state, const Child& heir) {
  Inheritance inheritance;
  inheritance.legacyNetWorth = legacyNetWorth(state);
  const int64_t heirs = childrenInFamily(state);
  inheritance.cash = heirs == 0 ? 1 : truncate(inheritance.legacyNetWorth) / heirs;
  inheritance.followers = heir.followers;
  inheritance.maxEnergy = heir.totalEnergyMax + state.permanentEnergyUpgrade;
  return inheritance;
}

std::optional<size_t> heirPosition(const GameState& state, int64_t index) {
  const auto position = childPosition(state, index);
  return position && mayTakeOver(state, state.saveAllChildList[*position]) ? position : std::nullopt;
}

Outcome retireAndPlayAs(const Game& game, int64_t index, Action confirmed) {
  const GameState& state = game.state;
  const auto position = heirPosition(state, index);
  if (!position) return {};
  if (isTooTired(state)) return tooTired();
  const std::string label = state.myLabelName.empty()
                                ? ""
                                : " You will also inherit the name " + state.myLabelName + " in your family's history.";
  return ask<"👑 Retire? 👑">("\nRetire " + state.myArtistsName + " and play as " +
                                state.saveAllChildList[*position].name +
                                "?\nProperties and investments will be liquidated and you will start over with a cash "
                                "inheritance, max energy "
                                "and any permanent energy upgrades." +
                                label + keptAsideText(game, SnapshotKind::takeover),
                            "Not Yet", {"Retire", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome takeOver(Game& game, int64_t index) {
  GameState& state = game.state;
  const auto position = heirPosition(state, index);
  if (!position) return {};
  if (isTooTired(state)) return tooTired();
  const Child heir = state.saveAllChildList[*position];
  const Inheritance inheritance = inheritanceOf(state, heir);
  const std::string former = state.myArtistsName;
  state.saveAllLegacyList.append(legacyOf(state, heir));
  grantAchievement(game, achievement::takeover);
  endLives(game, Lifetime::artist);
  state.ageAtTakeover = state.yearNumber;
  install(game, heir, inheritance);
  game.save(&GameState::saveAllLegacyList, &GameState::ageAtTakeover);
  ensureBasicNeeds(game);
  forgetLaunch(game);
  stateChanged(game);
  Outcome outcome = news<"👑 A New Generation 👑">("\n" + former + " passed away peacefully. From now on you are " +
                                                 heir.name + ".\n\nMake the family proud, or at least curious.");
  outcome += goTo(std::string(startOverSegue));
  return outcome;
}

}  // namespace backbeat
