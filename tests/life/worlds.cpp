#include "play/worlds.h"

#include "life/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

void begin(GameState& state, double cash) {
  setDate(state, 150);
  furnishCareer(state, 3, 3);
  state.totalCashAvailable = cash;
  state.totalEnergyMax = 110;
  state.totalEnergyAvailable = 400;
}

Matches whoSaysNo(const GameState& state, const std::string& name) {
  Matches match = somebody(state, name);
  match.matchImage = "woman31.png";
  match.interested = 1;
  match.pickupLineResponse = "Yikes...";
  match.superLike = 1;
  return match;
}

/// Everybody likes back, and two wait, one of whom would say no.
void single(GameState& state) {
  begin(state, 9'000);
  state.charisma = 201;
  addMatch(state, somebody(state, "Theo"));
  addMatch(state, whoSaysNo(state, "Ada"));
}

/// Too soon for more, no cash for a date, and two who wait.
void dating(GameState& state) {
  begin(state, 5);
  addPartner(state, somebody(state, "Theo"), 1, 30);
  Matches ex = somebody(state, "Milo");
  ex.relationshipState = -1;
  ex.weekStartedDating = 20;
  ex.weekEndedDating = 90;
  ex.breakupLine = "I gave you my heart and I kept the receipt";
  addMatch(state, ex);
  addMatch(state, whoSaysNo(state, "Ada"));
  addMatch(state, whoSaysNo(state, "Ines"));
}

/// Long enough together, and not close enough.
void lukewarm(GameState& state) {
  begin(state, 500);
  state.totalEnergyAvailable = 1;
  addPartner(state, somebody(state, "Theo"), 1, 90);
  state.energyLossExDrama = 1;
}

void inLove(GameState& state) {
  begin(state, 20'000'000);
  Matches partner = somebody(state, "Theo");
  partner.relationshipStatus = 96;
  addPartner(state, partner, 1, 90);
}

void engaged(GameState& state) {
  begin(state, 60'000);
  Matches partner = somebody(state, "Theo");
  partner.relationshipStatus = 92;
  addPartner(state, partner, 2, 100);
  state.saveRingImage = "ring3.png";
}

/// Young enough for children, and without a prenup.
void married(GameState& state) {
  begin(state, 800'000);
  Matches partner = somebody(state, "Ines");
  partner.matchImage = "woman31.png";
  partner.relationshipStatus = 140;
  addPartner(state, partner, 3, 120);
  addMatch(state, whoSaysNo(state, "Ada"));
}

/// So close that nothing parts them for years.
void goldenWedding(GameState& state) {
  married(state);
  state.saveAllMatchesList.update(0, [](Matches& partner) { partner.relationshipStatus = 2'000; });
}

/// On the brink, with a prenup; the baby comes this week.
void neglected(GameState& state) {
  begin(state, 800'000);
  Matches partner = somebody(state, "Ines");
  partner.matchImage = "woman31.png";
  partner.relationshipStatus = 0.9;
  partner.timeToBirth = 0;
  partner.maintenance = 95;
  addPartner(state, partner, 3, 120);
  state.signPrenup = 1;
}

void forgotten(GameState& state) {
  begin(state, 9'000);
  Matches partner = somebody(state, "Theo");
  partner.relationshipStatus = 0.2;
  addPartner(state, partner, 1, 120);
}

/// Married, with five children of all ages: a newborn, one to be sung to, one to be taught, one to be let go, one gone.
void familyOfFive(GameState& state) {
  married(state);
  setDate(state, 1'196);  // the last week of a year
  state.totalFans = 40'000;
  state.saveAllMatchesList.update(0, [&](Matches& partner) { partner.weekMatched = partner.weekStartedDating = 300; });
  Child newborn = childOf(state, "Newborn", 0);
  newborn.gender = 1;
  newborn.relationship = "Daughter";
  newborn.imageString = "femalechild2.png";
  newborn.birthWeekForTracking -= 9;
  addChild(state, childOf(state, "Otis", 2));
  addChild(state, childOf(state, "Jasper", 12));
  addChild(state, childOf(state, "Milo", 18));
  addChild(state, childOf(state, "Remy", 23));
  addChild(state, newborn);
  state.saveAllChildList.update(1, [](Child& child) { child.admiration = 12; });
}

/// One who has a label, houses and awards, is too old for children of the own, and has outlived most.
void oldArtist(GameState& state) {
  goldenWedding(state);
  setDate(state, 3'068);  // the last week of a year
  state.myLabelName = "Long Way Records";
  state.saveAllMatchesList.update(0, [&](Matches& partner) {
    partner.age = 30;
    partner.weekMatched = partner.weekStartedDating = 400;
  });
  addChild(state, childOf(state, "Teo", 40));
  Child frail = childOf(state, "Wren", 64);
  frail.ageofDeath = 65;
  addChild(state, frail);
  Child gone = childOf(state, "June", 20);
  gone.typeOfRelationship = -1;
  gone.relationship = "Abandoned";
  addChild(state, gone);
}

/// The same without the means.
void poorOldArtist(GameState& state) {
  oldArtist(state);
  state.totalCashAvailable = 900;
}

/// Two were artists before, and a child is ready.
void thirdGeneration(GameState& state) {
  setDate(state, 4'000);
  begin(state, 2'000'000);
  setDate(state, 4'000);
  state.saveAllLegacyList.append(ancestor("Nova Voss", 2005, 2062));
  Legacy second = ancestor("Ada", 2031, 2090);
  second.parentsNames = {"Nova Voss", "Theo"};
  second.successorBirthYear = 2060;
  state.saveAllLegacyList.append(second);
  state.ageAtTakeover = 2090;
  state.heirParentNames = "Ada\nMilan";
  state.twitterProfileImage = "portrait:1:woman:1924 1 80\nAda Milan\nlight";
  addPartner(state, somebody(state, "Theo"), 3, 500);
  addChild(state, childOf(state, "Otis", 20));
  addChild(state, childOf(state, "Wren", 6));
}

const RoomWorlds worlds({{"single", single},
                         {"dating", dating},
                         {"lukewarm", lukewarm},
                         {"in love", inLove},
                         {"engaged", engaged},
                         {"married", married},
                         {"golden wedding", goldenWedding},
                         {"married with a prenup", neglected},
                         {"forgotten", forgotten},
                         {"family of five", familyOfFive},
                         {"old artist", oldArtist},
                         {"poor old artist", poorOldArtist},
                         {"third generation", thirdGeneration}});

}  // namespace
}  // namespace backbeat
