#include "life/engagement.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "life/partner.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

constexpr double loveToPropose = 85;
constexpr double loveToWed = 75;
constexpr double fullLove = 100;
constexpr const char* signAnswer = "signPrenup";
constexpr const char* declineAnswer = "noPrenup";

std::string remaining(int64_t weeks) {
  if (weeks < 5) return std::to_string(weeks) + " week(s)";
  if (weeks < 52) return std::to_string(weeks / 4) + " month(s)";
  return std::to_string(weeks / 52) + " year(s)";
}

/// Why it is too early; nothing when it is not.
std::optional<Outcome> tooEarly(const GameState& state, const Matches& partner) {
  const int64_t weeks = weeksToNextStep(partner) + 1 - weeksTogether(state, partner);
  if (weeks <= 0) return std::nullopt;
  const bool isEngaged = partner.relationshipState == love::engaged;
  const std::string words =
      isEngaged ? " is overwhelmed with planning a wedding and doesn't want to rush being engaged.\n\n" + partner.name +
                      " thinks a potential wedding could be in "
                : " feels like a proposal now is too soon and would like to spend more time together.\n\nIdeally, " +
                      partner.name + " would like to get engaged in ";
  return refuse<"⏳ Needs More Time ⏳">("\n" + partner.name + words + remaining(weeks));
}

std::optional<Outcome> notReadyToPropose(const GameState& state, const Matches& partner) {
  if (std::optional<Outcome> early = tooEarly(state, partner)) return early;
  if (partner.relationshipStatus >= loveToPropose) return std::nullopt;
  return refuse<"❤️ Needs Work ❤️">("\nYour relationship needs to improve before you can propose.");
}

std::optional<Outcome> notReadyToWed(const GameState& state, const Matches& partner) {
  if (std::optional<Outcome> early = tooEarly(state, partner)) return early;
  if (!hasCash(state, weddingCost)) {
    return noCash("\nYou do not have enough cash (" + currency(weddingCost.dollars) +
                  ") to plan and put on your wedding.");
  }
  if (partner.relationshipStatus >= loveToWed) return std::nullopt;
  return refuse<"❤️ Needs Work ❤️">("\nYour relationship needs to improve before " + partner.name +
                                            " can have confidence at the altar.");
}

/// The partner goes on to the next state, as happy as can be.
void promise(Game& game, size_t position, int64_t relationshipState) {
  game.state.saveAllMatchesList.update(position, [&](Matches& partner) {
    partner.relationshipState = relationshipState;
    partner.relationshipStatus = fullLove;
  });
  game.save(&GameState::saveAllMatchesList);
}

Outcome askForPrenup(const GameState& state, const Matches& partner) {
  Outcome outcome = ask<"✍️ Prenup? ✍️">(
      "\nBefore you tie the knot, do you want " + partner.name + " to sign a prenup?\n\n" + partner.name +
          "'s Assets\n" + currency(partnersAssets(state, partner)) + "\n\n" + state.myArtistsName + "'s Assets\n" +
          currency(netAssets(state)) +
          "\n\nIf you DO NOT sign a prenup, your assets will be combined and split 50/50 upon divorce. If you DO sign "
          "a prenup, you will keep your assets seperate.",
      "Not Yet", {"Sign Prenup", {signAnswer, ""}});
  outcome.alerts.front().buttons.push_back({"No Prenup", {declineAnswer, ""}});
  return outcome;
}

Outcome tryForBaby(Game& game, size_t position) {
  const Matches& partner = game.state.saveAllMatchesList[position];
  if (!hasEnergy(game.state, babyCost)) return noEnergy("\nYou do not have enough energy to make a baby today.");
  pay(game, babyCost);
  stateChanged(game);
  if (fertilityBlocked(game.state)) return goTo("goToAdoptionDetail");
  const int64_t luck = game.random.integer(0, 100);
  if (luck % 7 == 0) {  // 0 among them: intended
    game.state.saveAllMatchesList.update(position, [](Matches& parent) { parent.timeToBirth = weeksOfPregnancy; });
    game.save(&GameState::saveAllMatchesList);
    return news<"🎉 Pregnancy Test 🎉">("| |\n\nAfter taking a pregnancy test, you and " + partner.name +
                                      " saw both lines appear! Baby on the way 👶");
  }
  if (luck % 9 == 0) {
    return news<"Rejected">("\n" + partner.name + " doesn't want to make a baby right now.", Feedback::warning);
  }
  return news<"Pregnancy Test">(
      "|\n\nAfter taking a pregnancy test, you and " + partner.name + " saw only one line appear. Keep trying!",
      Feedback::warning);
}

/// The year an artist counts as born in, for this rule alone.
int64_t birthYear(const GameState& state) {
  constexpr int64_t ofTheFirst = 2006;
  const bool isHeir = state.ageAtTakeover != 0 && !state.saveAllLegacyList.empty();
  return isHeir ? state.saveAllLegacyList.back().successorBirthYear : ofTheFirst;
}

}  // namespace

int64_t weeksToNextStep(const Matches& partner) {
  if (partner.relationshipState == love::dating) return partner.timeToPropose;
  return partner.relationshipState == love::engaged ? partner.timeToPropose + partner.timeToPropose / 2 : 0;
}

double partnersAssets(const GameState& state, const Matches& partner) {
  constexpr int64_t atWorkFrom = 22;
  const int64_t years = std::max<int64_t>(ageNow(state, partner) - atWorkFrom, 1);
  return std::trunc(partner.weeklyEarnings) * 13 * static_cast<double>(years);
}

bool fertilityBlocked(const GameState& state) {
  constexpr int64_t oldestParent = 44;
  const auto position = partnerPosition(state);
  if (!position || !isMarried(state.saveAllMatchesList[*position])) return false;
  const Matches& partner = state.saveAllMatchesList[*position];
  const auto shows = [&](const char* kind) { return partner.matchImage.find(kind) != std::string::npos; };
  if (shows("woman") && ageNow(state, partner) <= oldestParent) return false;
  // "woman" holds "man" too, so an older woman counts by the artist's age: intended.
  return !(shows("man") && state.yearNumber - birthYear(state) <= oldestParent);
}

bool mayTakeNextStep(const GameState& state, const Matches& partner) {
  if (isMarried(partner)) return false;
  const bool isEngaged = partner.relationshipState == love::engaged;
  return !(isEngaged ? notReadyToWed(state, partner) : notReadyToPropose(state, partner));
}

Outcome mainAction(Game& game) {
  const auto position = partnerPosition(game.state);
  if (!position) return {};
  const Matches& partner = game.state.saveAllMatchesList[*position];
  if (partner.timeToBirth >= 0) return {};
  if (isMarried(partner)) return tryForBaby(game, *position);
  if (partner.relationshipState == love::engaged) {
    return notReadyToWed(game.state, partner).value_or(askForPrenup(game.state, partner));
  }
  return notReadyToPropose(game.state, partner).value_or(goTo("goToEngagementRing"));
}

bool canPropose(const GameState& state) {
  const auto position = partnerPosition(state);
  if (!position) return false;
  const Matches& partner = state.saveAllMatchesList[*position];
  return partner.relationshipState == love::dating && !notReadyToPropose(state, partner);
}

Outcome propose(Game& game, size_t number) {
  const auto position = partnerPosition(game.state);
  if (!position || number >= rings.size()) return {};
  const Matches& partner = game.state.saveAllMatchesList[*position];
  if (partner.relationshipState != love::dating) return {};
  if (std::optional<Outcome> refusal = notReadyToPropose(game.state, partner)) return *refusal;
  const Ring& ring = rings[number];
  if (!hasCash(game.state, ring.price())) return noCash("\nYou do not have enough cash to purchase this ring.");
  pay(game, ring.price());
  game.state.saveRingImage = ring.imageString;
  game.save(&GameState::saveRingImage);
  promise(game, *position, love::engaged);
  stateChanged(game);
  Outcome outcome = news<"💍 Engaged 💍">("\n" + partner.name + " said YES!\n\nCongrats on your engagement!");
  outcome += closeScreen();
  return outcome;
}

Outcome wed(Game& game, bool withPrenup) {
  GameState& state = game.state;
  const auto position = partnerPosition(state);
  if (!position) return {};
  const Matches& partner = state.saveAllMatchesList[*position];
  if (partner.relationshipState != love::engaged) return {};
  if (std::optional<Outcome> refusal = notReadyToWed(state, partner)) return *refusal;
  pay(game, weddingCost);
  if (withPrenup) {
    state.signPrenup = 1;
    game.save(&GameState::signPrenup);
  } else {
    earn(game, {.dollars = partnersAssets(state, partner)});
  }
  promise(game, *position, love::married);
  state.weddingWeek = state.weekNumberForTracking;
  game.save(&GameState::weddingWeek);
  stateChanged(game);
  return news<"💒 Just Married 💒">("\nYou and " + partner.name + " said \"I do\" in front of everybody you love.");
}

}  // namespace backbeat
