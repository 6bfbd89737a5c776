#include "play/figures.h"
#include "core/money.h"
#include "core/numbers.h"
#include "life/builders.h"
#include "life/dating.h"
#include "life/engagement.h"
#include "life/partner.h"

namespace backbeat {

namespace {

// The partner is one who came into the world of figures with the ceiling of energy.
void readyForARing(Game& game) {
  game.state.saveAllMatchesList.update(*partnerPosition(game.state), [&](Matches& partner) {
    partner.relationshipState = love::dating;
    partner.relationshipStatus = 90;
    partner.timeToPropose = 1;
    partner.weekStartedDating = game.state.weekNumberForTracking - 20;
  });
}

const Matches& partnerOf(const GameState& state) { return state.saveAllMatchesList[*partnerPosition(state)]; }

void somebodyLikedBack(Game& game) { game.launch.dating.pendingMatch = somebody(game.state, "Theo"); }

constexpr int64_t otherId = 7;
void somebodyWaits(Game& game) {
  Matches match = somebody(game.state, "Theo");
  match.matchId = otherId;
  match.weekMatched -= 5;
  game.state.saveAllMatchesList.append(match);
}

Standings appFigures(Game& twin) {
  const std::string name = partnerOf(twin.state).name;
  return {
      {"poster: text", name + " would not like to see this."},
      {"Messages", "1", "goToFxyMatchList"},
      {"text", "A swipe takes 3 energy, whichever way. The more charisma you have, the more of them like you back."}};
}

Standings cardFigures(Game& twin) {
  drawMatchCandidate(twin);
  const Matches& candidate = twin.launch.dating.candidate;
  return {{"deck: aside", std::to_string(candidate.age)},
          {"deck: note", "3 each, " + std::to_string(twin.state.totalEnergyAvailable) + " left"},
          {"Distance", std::to_string(twin.launch.dating.distance) + " minutes away"},
          {"chemistry", withCommas(truncate(candidate.chemistry))},
          {"rating", std::to_string((candidate.beauty + candidate.intelligence + candidate.personality) / 30)},
          {"Pass: price", "3 energy"},
          {"Super like: price", "3 energy"},
          {"Like: price", "3 energy"}};
}

Standings listFigures(Game& twin) {
  const Matches& partner = partnerOf(twin.state);
  return {{"subtitle", "1 match"},
          {partner.name, "4 years", "nowhere"},
          {partner.name + ": subtitle", partner.occupation},
          {partner.name + ": badge", "❤️"}};
}

Standings matchFigures(Game&) {
  return {{"subtitle", "You matched 5 week(s) ago"}, {"Works as", "Physical Therapist, 29"}};
}

Standings homeFigures(Game& twin) {
  const Matches& partner = partnerOf(twin.state);
  const int64_t yearsToGo = (partner.timeToPropose + 1 - 211) / 52;
  return {{"title", partner.name},
          {"Together", "4 years"},
          {"Temper", "Possessive (-4⚡️)"},
          {"Your relationship", std::to_string(truncate(partner.relationshipStatus))},
          {"Your relationship: share", shareText(1)},
          {"text", "Ready for a proposal in " + std::to_string(yearsToGo) + " years."},
          {"Quality Time", "", "nowhere"},
          {"Quality Time: price", "10 energy"},
          {"Compliment", "", "nowhere"},
          {"Compliment: price", "2 energy"},
          {"Serenade", "", "nowhere"},
          {"Serenade: price", "15 energy"},
          {"ASK FOR MONEY", "", "nowhere"},
          {"ASK FOR MONEY: price", priceText({twin.state.askForMoneyEnergyCost, 0})},
          {"PROPOSE", "", "nowhere"},
          {"Break Up", "", "nowhere"},
          {"Break Up: price", "25 energy"},
          {"Profile", "", "goToProfilePartner"},
          {"Profile: subtitle", "Who " + partner.name + " is"},
          {"Messages", "", "goToFxyMatchList"}};
}

Standings ringFigures(Game& twin) {
  Standings standings = {{"subtitle", "For " + partnerOf(twin.state).name}};
  for (const Ring& ring : rings) {
    standings.push_back({std::string(ring.name) + std::string(ring.cut) + ": price", priceText(ring.price())});
  }
  return standings;
}

Standings profileFigures(Game& twin) {
  const Matches& partner = partnerOf(twin.state);
  return {{"cover", partner.name},
          {"cover: text", std::to_string(partner.age + 4) + " years old\n" + partner.matchTagline},
          {"Together", "4 years"},
          {"Temper", "Possessive (-4⚡️)"},
          {"Occupation", partner.occupation},
          {"Earnings a week", currency(partner.weeklyEarnings)},
          {"Rating", "10 of 10"},
          {"Change the Name", "", "goToEditPartnerName"}};
}

Standings nameFigures(Game& twin) { return {{"Name", partnerOf(twin.state).name}}; }
Standings none(Game&) { return {}; }

std::vector<ScreenFigures> screens() {
  return {{.segue = "goToFXYDating", .figures = appFigures},
          {.segue = "goToFXYMatching", .figures = cardFigures},
          {.segue = "goToRelationshipMatch", .figures = none, .before = somebodyLikedBack},
          {.segue = "goToFxyMatchList", .figures = listFigures},
          {.segue = "goToYouMatchedWith", .argument = "7", .figures = matchFigures, .before = somebodyWaits},
          {.segue = "goToRelationshipHome", .figures = homeFigures},
          {.segue = "goToEngagementRing", .figures = ringFigures, .before = readyForARing},
          {.segue = "goToProfilePartner", .figures = profileFigures},
          {.segue = "goToEditPartnerName", .figures = nameFigures}};
}

const FiguresOf life{.screens = screens};

}  // namespace
}  // namespace backbeat
