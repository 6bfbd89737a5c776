#include "play/figures.h"

#include <cmath>

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "life/builders.h"
#include "life/children.h"
#include "life/dating.h"
#include "life/engagement.h"
#include "life/parenthood.h"
#include "life/partner.h"
#include "wealth/net_assets.h"

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

const Child& childIn(const GameState& state) { return state.saveAllChildList[0]; }

std::string costOf(const Child& child) { return currency(child.weeklyFinancialCost); }

Standings talentFigures(const Child& child) {
  Standings standings;
  for (const Talent& talent : talents) {
    standings.push_back({talent.label, std::to_string(child.*talent.level)});
    standings.push_back({std::string(talent.label) + ": share", shareText(shareOf(child.*talent.level, int64_t{100}))});
  }
  return standings;
}

Standings childListFigures(Game& twin) {
  const Child& child = childIn(twin.state);
  return {{"subtitle", std::to_string(twin.state.childEnergyCost) + " energy a week"},
          {child.name, "18 years old", "goToChildDetail 0"},
          {child.name + ": subtitle", child.relationship},
          {child.name + ": share", shareText(1)}};
}

Standings childFigures(Game& twin) {
  const Child& child = childIn(twin.state);
  return Standings{{"title", child.name},
                   {"subtitle", child.relationship},
                   {"poster", child.name},
                   {"poster: text", "18 years old"},
                   {"Admiration", std::to_string(truncate(child.admiration))},
                   {"Admiration: share", shareText(1)},
                   {"Compliment", "", "nowhere"},
                   {"Compliment: price", "2 energy"},
                   {"Play Music", "", "nowhere"},
                   {"Play Music: price", "5 energy"},
                   {"Quality Time", "", "nowhere"},
                   {"Quality Time: price", "10 energy"},
                   {"Rename", "", "goToEditChildName 0"},
                   {"Parents:: subtitle", child.artistName + " & " + child.partnerName},
                   {"Weekly Energy: ", std::to_string(child.weeklyEnergyCost)},
                   {"Weekly Expense: ", costOf(child)},
                   {"Followers: ", withCommas(child.followers)},
                   {"Occupation: ", child.occupation},
                   {"Abandon: price", "50 energy"}} +
         talentFigures(child);
}

Standings adoptionFigures(Game& twin) {
  const Child child = drawAdoption(twin);
  return Standings{{"poster: text", "Age: " + std::to_string(twin.state.yearNumber - child.birthYear) +
                                        "\nCould be your " + (child.gender == daughter ? "daughter" : "son")},
                   {"Weekly Energy: ", std::to_string(child.weeklyEnergyCost)},
                   {"Weekly Expense: ", costOf(child)},
                   {"text", "The adoption process costs $50,000 if the adoption is approved."}} +
         talentFigures(child);
}

Standings childNameFigures(Game& twin) { return {{"Name", childIn(twin.state).name}}; }

Standings takeoverFigures(Game& twin) {
  const Child& child = childIn(twin.state);
  return Standings{{"poster", child.name},
                   {"poster: text", "18 years old\n" + child.occupation},
                   {"Followers: ", withCommas(child.followers)},
                   {"Inheritance: ", currency(std::trunc(netAssets(twin.state)))},
                   {"Max Energy: ", std::to_string(child.totalEnergyMax + twin.state.permanentEnergyUpgrade)},
                   {"text", "You need 75 energy for this step, and keep it. A talent below 1 begins at 1."},
                   {"button", "PLAY AS " + child.name}} +
         talentFigures(child);
}

void somebodyHasDied(Game& game) {
  Legacy legacy = ancestor("Nova Voss", 2005, 2043);
  legacy.parentsNames = {"Ada", "Theo"};
  game.state.saveAllLegacyList.append(legacy);
}

Standings pageFigures() {
  return {
      {"page: kicker", "Beloved (2005 – 2043)"},
      {"page: text",
       "Nova Voss lived a wonderful life and passed away peacefully at the age of 38. Throughout their career, Nova "
       "Voss released 214 songs, 12 albums (1 diamond-certified) and toured 3 times. With 31 Billboard and 17 #1 "
       "hits, Nova Voss left their mark on the music industry and is survived by 3 children."},
      {"songs", "214"},
      {"number ones", "17"},
      {"Golden Forks", "2"},
      {"net worth", "$48.2M"}};
}

Standings dynastyFigures(Game& twin) {
  const Child& child = childIn(twin.state);
  return Standings{{"Nova Voss", "2005 – 2043", "goToDynastyDetail 0"},
                   {"Mara Voss", "since " + std::to_string(twin.state.ageAtTakeover)},
                   {child.name, "18 years old", "goToChildDetail 0"},
                   {"Nova Voss", "", "goToDynastyDetail 0"},
                   {"Nova Voss: subtitle", "2005 – 2043 (child of Ada & Theo)"}} +
         pageFigures();
}

Standings lifeFigures(Game&) {
  return Standings{
             {"Net Worth at Death", "$48,200,000"},     {"Net Worth at Death: subtitle", "Unranked in the world."},
             {"Most Popular Album ", "6,100,000 sold"}, {"Most Popular Song ", "812,000,000 plays"},
             {"Most Popular Tour ", "92,000 seats"},    {"Longest #1 Hit ", "9 weeks"},
             {"Longest Billboard Hit ", "44 weeks"}} +
         pageFigures();
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
          {.segue = "goToEditPartnerName", .figures = nameFigures},
          {.segue = "goToChildList", .figures = childListFigures},
          {.segue = "goToChildDetail", .argument = "0", .figures = childFigures},
          {.segue = "goToAdoptionDetail", .figures = adoptionFigures},
          {.segue = "goToEditChildName", .argument = "0", .figures = childNameFigures},
          {.segue = "goToTakeOverDetail", .argument = "0", .figures = takeoverFigures},
          {.segue = "goToFamilyDynasty", .figures = dynastyFigures, .before = somebodyHasDied},
          {.segue = "goToDynastyDetail", .argument = "0", .figures = lifeFigures, .before = somebodyHasDied}};
}

const FiguresOf life{.screens = screens};

}  // namespace
}  // namespace backbeat
