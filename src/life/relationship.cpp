#include "life/relationship.h"

#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "core/text.h"
#include "life/dating_pools.h"
#include "life/endings.h"
#include "life/partner.h"
#include "life/relationship_pools.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

constexpr int64_t askCostStep = 5;
constexpr size_t linesOfPartners = 23;  ///< of those that partners write, so many are the artist's too

/// Changes how close the two are, by points.
void grow(Game& game, size_t position, int64_t points) {
  game.state.saveAllMatchesList.update(
      position, [&](Matches& partner) { partner.relationshipStatus += static_cast<double>(points); });
  game.save(&GameState::saveAllMatchesList);
}

std::string grewBy(int64_t points) { return "\n\nYour relationship grew by +" + std::to_string(points); }

std::string badBreakupLine(Random& random) {
  const auto line =
      static_cast<size_t>(random.integer(0, static_cast<int64_t>(linesOfPartners + harsherLines.size()) - 1));
  return std::string(line < linesOfPartners ? breakupLines[line] : harsherLines[line - linesOfPartners]);
}

AlertTitle loveTo(const Matches& partner) { return alertTitle<"❤️ * ❤️", "compliment">.with(partner.name); }

std::string together(const Matches& partner, std::string_view idea) {
  return "\nYou and " + partner.name + " decided to " + std::string(idea);
}

/// What has been decided on is done: the energy goes, the two come closer.
Outcome dateNews(Game& game, size_t position, const std::string& told, int64_t points) {
  grow(game, position, points);
  pay(game, qualityTimeCost);
  stateChanged(game);
  return news<"❤️ Quality Time ❤️">(told + grewBy(points));
}

Outcome paidDate(Game& game, size_t position, const Matches& partner) {
  const Price cost = {.dollars = game.random.uniformDouble(10, 75)};
  if (!hasCash(game.state, cost)) {
    return noCash<"💵 Not Enough 💵">(
        "\nYour pockets are light and you didn't have enough cash for the date you had in mind. Maybe next time...");
  }
  pay(game, cost);
  const std::string told = together(partner, game.random.element(dateIdeasPaid));
  return dateNews(game, position, told + ". It cost you " + currency(cost.dollars), game.random.integer(2, 4));
}

Outcome freeDate(Game& game, size_t position, const Matches& partner) {
  const std::string idea(game.random.element(dateIdeasFree));
  const int64_t points = game.random.integer(2, 4);
  postChirpForMatch(
      game, partner,
      game.state.myArtistsName + " and I decided to " + idea + "! " + std::string(game.random.element(endOfDateList)));
  return dateNews(game, position, together(partner, idea), points);
}

Outcome dirtyDate(Game& game, size_t position, const Matches& partner) {
  const std::string told = together(partner, game.random.element(dateIdeasDirty));
  return dateNews(game, position, told + " - things got steamy fast.", game.random.integer(2, 7));
}

struct Sung {
  std::string told;  ///< up to the partner's name
  std::string reaction;
};

Sung sung(Game& game, const Matches& partner) {
  const RecordList<Song>& songs = game.state.saveAllSongList;
  constexpr size_t enoughSongs = 2;
  if (songs.size() < enoughSongs) {
    return {"\nYou sang a new song off the cuff and " + partner.name + " ",
            std::string(game.random.element(serenadeReactions))};
  }
  const Song& song = songs[static_cast<size_t>(game.random.integer(0, static_cast<int64_t>(songs.size()) - 1))];
  const std::string reaction(song.isExplicit >= 1 ? game.random.element(serenadeReactionsExplicit)
                                                  : game.random.element(serenadeReactions));
  return {"You sang one of your own songs,\n" + song.title + "\n and " + partner.name + " ", reaction};
}

Outcome tooMuchAsked(Game& game, const Matches& partner) {
  const std::string line = badBreakupLine(game.random);
  if (!isMarried(partner)) postChirpForMatch(game, partner, "🤬 Gold diggers are the WORST!!");
  return partnerLeaves(game, line, askedForCash);
}

}  // namespace

Price askForMoneyCost(const GameState& state) { return {.energy = state.askForMoneyEnergyCost}; }

Outcome qualityTime(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  if (!hasEnergy(game.state, qualityTimeCost)) return noEnergy("\nYou do not have enough energy for quality time.");
  const Matches partner = game.state.saveAllMatchesList[*position];
  const int64_t kind = game.random.integer(0, 4);
  if (kind < 2) return freeDate(game, *position, partner);
  return kind == 2 ? dirtyDate(game, *position, partner) : paidDate(game, *position, partner);
}

Outcome compliment(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  if (!hasEnergy(game.state, complimentCost)) {
    return noEnergy("\nYou do not have enough energy to think of a great compliment.");
  }
  std::string told = "\n" + std::string(game.random.element(compliments));
  if (game.random.coin() == 1) {
    grow(game, *position, 1);
    told += grewBy(1);
  }
  pay(game, complimentCost);
  stateChanged(game);
  return news(loveTo(game.state.saveAllMatchesList[*position]), told);
}

Outcome serenade(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  if (!hasEnergy(game.state, serenadeCost)) {
    return noEnergy("\nYou do not have enough energy to serenade your lover right now");
  }
  const int64_t points = game.random.integer(1, 7);
  const auto [told, reaction] = sung(game, game.state.saveAllMatchesList[*position]);
  if (reaction.find("thrust") != std::string::npos) grantAchievement(game, achievement::hipThrust);
  grow(game, *position, points);
  pay(game, serenadeCost);
  stateChanged(game);
  return news<"🎶 Serenade 🎶">(told + reaction + grewBy(points) + ".");
}

Outcome askForMoney(Game& game) {
  GameState& state = game.state;
  const auto position = partnerPosition(state);
  if (!position) return {};
  if (!hasEnergy(state, askForMoneyCost(state))) {
    return noEnergy("\nYou do not have enough energy to ask your partner for cash money.");
  }
  const Matches partner = state.saveAllMatchesList[*position];
  const double amount = partner.weeklyEarnings * game.random.uniformDouble(0.1, 0.3);
  const int64_t hit = game.random.integer(10, 50);
  const bool isGladly = game.random.integer(0, 2) == 0;
  pay(game, askForMoneyCost(state));
  state.askForMoneyEnergyCost += askCostStep;
  game.save(&GameState::askForMoneyEnergyCost);
  std::string told = "\n" + partner.name + " gave you " + currency(amount);
  if (!isGladly) {
    grow(game, *position, -hit);
    if (state.saveAllMatchesList[*position].relationshipStatus < 0) return tooMuchAsked(game, partner);
    told += " but wasn't impressed.\n\nYour relationship took a hit of -" + std::to_string(hit) + ".";
  }
  earn(game, {.dollars = amount});
  stateChanged(game);
  return news<"💰 Cash Money 💰">(told, isGladly ? Feedback::success : Feedback::warning);
}

Outcome askToBreakUp(const Game& game, Action confirmed) {
  const GameState& state = game.state;
  const auto position = partnerPosition(state);
  if (!position) return {};
  if (!hasEnergy(state, breakupCost)) {
    return noEnergy("\nYou do not have enough energy (25) to share your true feelings and call it quits.");
  }
  const Matches& partner = state.saveAllMatchesList[*position];
  AlertButton yes = {"Break Up", std::move(confirmed), AlertButton::Style::destructive};
  if (!isMarried(partner)) {
    return ask<"💔 Breakup? 💔">("\nAre you sure you want to breakup with " + partner.name + "?", "No", yes);
  }
  yes.label = "Divorce";
  const std::string sure = "Are you sure you want to divorce " + partner.name + "?\n\n";
  if (state.signPrenup >= 1) {
    return ask<"💔 Divorce? 💔">(sure + "You signed a prenup so you will keep all your assets.", "No", yes);
  }
  return ask<"💔 Divorce? 💔">(
      "\n" + sure + partner.name + " will be entitled to 50% - (" + settlementText(settlement(state)) +
          ").\n\nIf you do not have the cash on hand, properties will be sold and stakes in companies will be split.",
      "No", yes);
}

Outcome breakup(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  if (!hasEnergy(game.state, breakupCost)) {
    return noEnergy("\nYou do not have enough energy (25) to share your true feelings and call it quits.");
  }
  const Matches partner = game.state.saveAllMatchesList[*position];
  const bool isKind = game.random.coin() == 1;
  const std::string line = isKind ? std::string(game.random.element(goodBreakupLines)) : badBreakupLine(game.random);
  pay(game, breakupCost);
  leavePartner(game, {line, isKind ? 0 : 1});
  const std::string told = "\nYou sent " + partner.name + " a breakup text:\n\n'" + line +
                           "'.\n\nYou lost your energy bonus of " + std::to_string(partner.energyBonus);
  if (isMarried(partner)) {
    return news<"💔 Ready to Move On 💔">(told + " and an additional -2 for all the drama related to the divorce.",
                                        Feedback::warning);
  }
  if (isKind) {
    return news<"💔 Moving On 💔">(told + ", shed some tears together but ended on good terms.", Feedback::warning);
  }
  return news<"💔 Heartbreaker 💔">(told + " and an additional -1 for all the drama your now ex will be causing you.",
                                  Feedback::warning);
}

void renamePartner(Game& game, const std::string& name) {
  const auto position = partnerPosition(game.state);
  if (!position) return;
  game.state.saveAllMatchesList.update(
      *position, [&](Matches& partner) { partner.name = firstCharacters(trimmed(name), longestPartnerName); });
  game.save(&GameState::saveAllMatchesList);
  stateChanged(game);
}

}  // namespace backbeat
