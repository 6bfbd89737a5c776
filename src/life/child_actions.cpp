#include "life/child_actions.h"

#include "core/calendar.h"
#include "core/purse.h"
#include "life/children.h"
#include "life/parenthood_pools.h"
#include "music/title_pools.h"

namespace backbeat {

namespace {

constexpr int64_t lullabyWeeks = 160;

/// Place of a child that can be met; nothing for any other.
std::optional<size_t> childAtHome(const GameState& state, int64_t index) {
  const auto position = childPosition(state, index);
  return position && isInFamily(state.saveAllChildList[*position]) ? position : std::nullopt;
}

template <class Change>
void change(Game& game, size_t position, Change&& how) {
  game.state.saveAllChildList.update(position, how);
  game.save(&GameState::saveAllChildList);
}

/// What a lesson or a lullaby did to the child, in words; "" for nothing.
std::string improve(Game& game, size_t position, int64_t Child::*talent, const std::string& told) {
  bool improved = false;
  change(game, position, [&](Child& child) { improved = raiseTalent(child, talent); });
  return improved ? told : "";
}

std::string gainAdmiration(Game& game, size_t position, const char* behindName) {
  change(game, position, [](Child& child) { admire(child, 1); });
  return "\n\n" + game.state.saveAllChildList[position].name + behindName;
}

constexpr const char* grewByOne = "'s admiration for you grew by +1";

Outcome finish(Game& game, const Price& cost, Outcome outcome) {
  pay(game, cost);
  stateChanged(game);
  return outcome;
}

/// By a draw of 31: each talent once, admiration 21 times.
std::string lullabyGain(Game& game, size_t position) {
  static constexpr int64_t Child::*taught[] = {&Child::songWriting, &Child::rhythm, &Child::vocals, &Child::virality,
                                               &Child::charisma};
  constexpr size_t lastAdmiration = 25;
  const auto luck = static_cast<size_t>(game.random.integer(0, 30));
  const std::string name = game.state.saveAllChildList[position].name;
  if (luck < std::size(taught)) {
    return improve(game, position, taught[luck], "\n\n" + name + "'s musical ability improved.");
  }
  return luck <= lastAdmiration ? gainAdmiration(game, position, grewByOne) : "";
}

Outcome lullaby(Game& game, size_t position) {
  const RecordList<Song>& songs = game.state.saveAllSongList;
  const std::string name = game.state.saveAllChildList[position].name;
  const auto last = static_cast<int64_t>(songs.size()) - 1;
  const int64_t song = last < 1 ? 0 : game.random.integer(0, last);
  if (song == 0) {  // the first song is never sung well: intended
    return news<"🎵 Lullably 🎵">("\nYou sang a song but your voice cracked and " + name + " started crying.",
                                Feedback::warning);
  }
  const std::string told = "\nYou sang one of your own songs,\n\n" + songs[static_cast<size_t>(song)].title +
                           "\n and " + name + " " + std::string(game.random.element(babyReaction));
  return news<"🎵 Lullably 🎵">(told + lullabyGain(game, position));
}

/// What a lesson ends with: nothing but praise at 2, a talent at 1, admiration at 0.
std::string lessonEnd(Game& game, size_t position, int64_t luck, int64_t Child::*talent, const std::string& praise,
                      const std::string& learned) {
  if (luck == 2) return praise;
  if (luck == 1) return improve(game, position, talent, learned);
  return gainAdmiration(game, position, grewByOne);
}

Outcome writeTogether(Game& game, size_t position, int64_t luck) {
  const std::string name = game.state.saveAllChildList[position].name;
  const std::string first(game.random.element(firstTitleWords));
  const std::string title = first + " " + std::string(game.random.element(secondTitleWords));
  return news<"✍️ Songwriting ✍️">("\nYou and " + name + " wrote a song together. You called it:\n\n" + title +
                                           lessonEnd(game, position, luck, &Child::songWriting,
                                                     "\n\nWhat a great time!",
                                                     "\n\n" + name + " became a better songwriter."));
}

Outcome lesson(Game& game, size_t position, int64_t kind, int64_t luck) {
  const std::string name = game.state.saveAllChildList[position].name;
  if (kind == 0) return writeTogether(game, position, luck);
  if (kind == 2) {
    return news<"🎤 Vocals 🎤">("\nYou and " + name + " spent some time in the recording booth." +
                              lessonEnd(game, position, luck, &Child::vocals, " Great job " + name + "!",
                                        " You sang your hearts out and " + name + " became a better vocalist."));
  }
  return news<"🎶 Rhythm 🎶">("\nYou and " + name + " played music together in the studio." +
                            lessonEnd(game, position, luck, &Child::rhythm, " What a great session!",
                                      " You found the groove and " + name + " learned more about rhythm."));
}

}  // namespace

Outcome complimentChild(Game& game, int64_t index) {
  const auto position = childAtHome(game.state, index);
  if (!position) return {};
  if (!hasEnergy(game.state, childComplimentCost)) {
    return noEnergy("\nYou do not have enough energy to think of a great compliment.");
  }
  const std::string name = game.state.saveAllChildList[*position].name;
  std::string told = "\n" + std::string(game.random.element(childCompliments));
  if (game.random.coin() == 1) told += gainAdmiration(game, *position, "'s admiration of you grew by +1");
  return finish(game, childComplimentCost, news(alertTitle<"❤️ * ❤️", "compliment">.with(name), told));
}

Outcome playMusic(Game& game, int64_t index) {
  const auto position = childAtHome(game.state, index);
  if (!position) return {};
  if (!hasEnergy(game.state, playMusicCost)) return noEnergy("\nYou do not have enough energy right now.");
  const int64_t kind = game.random.integer(0, 2);
  const int64_t luck = game.random.integer(0, 2);
  const int64_t weeks = game.state.weekNumberForTracking - game.state.saveAllChildList[*position].birthWeekForTracking;
  return finish(game, playMusicCost,
                weeks < lullabyWeeks ? lullaby(game, *position) : lesson(game, *position, kind, luck));
}

Outcome qualityTimeWithChild(Game& game, int64_t index) {
  const auto position = childAtHome(game.state, index);
  if (!position) return {};
  if (!hasEnergy(game.state, childQualityTimeCost)) {
    return noEnergy("\nYou do not have enough energy to spend time with your kids.");
  }
  const std::string name = game.state.saveAllChildList[*position].name;
  std::string told = "\nYou and " + name + " " + std::string(game.random.element(qualityTimeActivites));
  if (const int64_t points = game.random.integer(0, 2); points > 0) {
    change(game, *position, [&](Child& child) { admire(child, static_cast<double>(points)); });
    told += "\n\n" + name + "'s admiration of you grew by +" + std::to_string(points);
  }
  return finish(game, childQualityTimeCost, news<"😃 Quality Time 😃">(told));
}

Outcome askToAbandon(const Game& game, int64_t index, Action confirmed) {
  const auto position = childAtHome(game.state, index);
  if (!position) return {};
  if (!hasEnergy(game.state, abandonmentCost)) {
    return noEnergy("\nYou do not have enough energy (50) for a step that cannot be undone.");
  }
  const Child& child = game.state.saveAllChildList[*position];
  return ask<"Abandon">(
      "\nAre you sure you want to abandon " + child.name + "? You will lose -" +
          std::to_string(child.weeklyEnergyCost / 2) +
          " to your max energy for the emotional toll.\n\nSibling's admiration will also be impacted.",
      "No", {"Abandon", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome abandonChild(Game& game, int64_t index) {
  GameState& state = game.state;
  const auto position = childAtHome(state, index);
  if (!position || !hasEnergy(state, abandonmentCost)) return {};
  const int64_t cost = state.saveAllChildList[*position].weeklyEnergyCost;
  pay(game, abandonmentCost);
  state.childAbandonmentEnergyLoss += cost / 2;
  state.totalEnergyMax -= cost / 2;
  state.saveAllChildList.update(*position, [&](Child& child) {
    endUpkeep(state, child);
    child.typeOfRelationship = kinship::abandoned;
    child.admiration = 0;
    child.relationship = "Abandoned";
  });
  for (size_t i = 0; i < state.saveAllChildList.size(); ++i) {
    if (!isInFamily(state.saveAllChildList[i])) continue;
    const double hurt = game.random.uniformDouble(25, 75);
    state.saveAllChildList.update(i, [&](Child& sibling) { admire(sibling, -hurt); });
  }
  game.save(&GameState::saveAllChildList, &GameState::childEnergyCost, &GameState::childAbandonmentEnergyLoss,
            &GameState::totalEnergyMax);
  stateChanged(game);
  Outcome outcome;
  outcome.feedback = Feedback::warning;
  return outcome;
}

}  // namespace backbeat
