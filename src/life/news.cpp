#include "life/news.h"

#include "core/money.h"
#include "life/children.h"
#include "life/engagement.h"
#include "life/partner.h"

namespace backbeat {

namespace {

using Kind = News::Kind;

constexpr double lonelyBelow = 15;  ///< of the relationship: a few weeks are left

void addMatchNeed(const GameState& state, std::vector<Need>& needs) {
  const size_t waiting = matchesWaiting(state);
  if (waiting == 0) return;
  needs.push_back(
      {.priority = 110,
       .picture = icon("message"),
       .title = waiting == 1 ? "Somebody likes you back" : std::to_string(waiting) + " people like you back",
       .subtitle = "Ask them out",
       .segue = "goToFxyMatchList"});
}

/// A proposal or a wedding that nothing but the artist holds up.
void addNextStepNeed(const GameState& state, const Matches& partner, std::vector<Need>& needs) {
  if (!mayTakeNextStep(state, partner)) return;
  const bool isEngaged = partner.relationshipState == love::engaged;
  needs.push_back({.priority = 150,
                   .picture = icon(isEngaged ? "flower" : "ring"),
                   .title = isEngaged ? "You could marry " + partner.name : "You could propose to " + partner.name,
                   .subtitle = "It has been " + lengthText(weeksTogether(state, partner)),
                   .segue = "goToRelationshipHome"});
}

void addFirstMatch(const GameState& state, int64_t week, std::vector<News>& news) {
  // Whoever says no is forgotten, but the ids go on.
  constexpr int64_t firstId = 1;
  const auto position = matchPosition(state, firstId);
  if (!position || state.saveAllMatchesList[*position].weekMatched != week) return;
  const Matches& match = state.saveAllMatchesList[*position];
  news.push_back({.kind = Kind::first,
                  .rank = 310,
                  .key = "first match",
                  .picture = faceOf(match),
                  .kicker = "Your first match",
                  .headline = "You and " + match.name + " liked each other",
                  .text = match.matchTagline});
}

void addNewPartner(const GameState& state, int64_t week, std::vector<News>& news) {
  const auto position = partnerPosition(state);
  if (!position || state.saveAllMatchesList[*position].weekStartedDating != week) return;
  const Matches& partner = state.saveAllMatchesList[*position];
  const auto everDated = [&](const Matches& match) {
    return match.matchId != partner.matchId && match.relationshipState != love::matched;
  };
  const bool isFirst = state.saveAllMatchesList.find(everDated) == state.saveAllMatchesList.size();
  news.push_back({.kind = isFirst ? Kind::first : Kind::reached,
                  .rank = isFirst ? 510 : 420,
                  .key = "partner",
                  .picture = faceOf(partner),
                  .kicker = isFirst ? "Your first love" : "It's official",
                  .headline = "You and " + partner.name + " are together",
                  .text = "+" + std::to_string(partner.energyBonus) + " energy, every week that it lasts"});
}

void addWedding(const Game& game, int64_t week, std::vector<News>& news) {
  const GameState& state = game.state;
  const auto position = partnerPosition(state);
  if (!position || state.weddingWeek != week || !isMarried(state.saveAllMatchesList[*position])) return;
  const Matches& partner = state.saveAllMatchesList[*position];
  news.push_back({.kind = Kind::reached,
                  .rank = 570,
                  .key = "wedding",
                  .picture = drawn(Picture::Kind::scene, "wedding", partner.name),
                  .kicker = "Just married",
                  .headline = "You and " + partner.name + " said yes",
                  .text = "Together for " + lengthText(weeksTogether(state, partner))});
}

/// Who has left in the report itself; who was left during the week knows it already.
const Matches* whoLeft(const GameState& state) {
  const RecordList<Matches>& matches = state.saveAllMatchesList;
  const size_t found = matches.find([&](const Matches& match) {
    return match.relationshipState == love::ended && match.weekEndedDating == state.weekNumberForTracking;
  });
  return found == matches.size() ? nullptr : &matches[found];
}

void addBreakUp(const GameState& state, std::vector<News>& news) {
  const Matches* ex = whoLeft(state);
  if (!ex) return;
  news.push_back({.kind = Kind::ended,
                  .rank = 580,
                  .key = breakUpKey,
                  .picture = faceNow(state, *ex),
                  .kicker = "Together " + lengthText(weeksTogether(state, *ex)),
                  .headline = ex->name + " has left you",
                  .text = "\"" + ex->breakupLine + "\"",
                  .tone = Tone::bad});
  news.push_back({.kind = Kind::ended,
                  .rank = 290,
                  .key = "lost energy",
                  .picture = icon("bolt"),
                  .headline = "Less max energy",
                  .text = "The bonus of " + std::to_string(ex->energyBonus) + " is gone, and some more for the drama",
                  .tone = Tone::bad});
}

void addBirth(const GameState& state, std::vector<News>& news) {
  const RecordList<Child>& children = state.saveAllChildList;
  const size_t found = children.find([&](const Child& child) {
    return child.birthWeekForTracking == state.weekNumberForTracking && child.typeOfRelationship >= 1;
  });
  if (found == children.size()) return;
  const Child& child = children[found];
  news.push_back({.kind = children.size() == 1 ? Kind::first : Kind::reached,
                  .rank = 575,
                  .key = "birth",
                  .picture = drawn(Picture::Kind::scene, "nursery", child.artistName + child.partnerName),
                  .kicker = children.size() == 1 ? "Your first child" : "A child is born",
                  .headline = child.gender == 0 ? "It's a boy" : "It's a girl",
                  .text = "Takes " + std::to_string(child.weeklyEnergyCost) + " energy and " +
                          currency(child.weeklyFinancialCost) + " a week"});
}

/// Everybody grows older at New Year: who goes to school, is a teen now, or of age.
void addBirthdays(const GameState& state, std::vector<News>& news) {
  struct Birthday {
    int64_t age;
    int64_t rank;
    const char* headline;
    const char* text;
  };
  static constexpr Birthday birthdays[] = {
      {6, 240, " goes to school now", "The lunch box is bigger than the child"},
      {ageOfTeens, 260, " is a teen now", "Doors will be closed, some of them loudly"},
      {ageOfMajority, 440, " is of age", "From now on your name could be carried on"}};
  if (state.weekNumber != 1) return;
  for (const Child& child : state.saveAllChildList) {
    for (const Birthday& birthday : birthdays) {
      if (!isInFamily(child) || ageOf(state, child) != birthday.age) continue;
      news.push_back({.rank = birthday.rank,
                      .key = "birthday",
                      .picture = portraitOf(state, child),
                      .kicker = ageText(state, child),
                      .headline = child.name + birthday.headline,
                      .text = birthday.text});
    }
  }
}

/// A newborn without a name comes first, then whoever hardly looks up to the artist any more.
void addChildNeed(const GameState& state, std::vector<Need>& needs) {
  constexpr double lowAdmiration = 25;
  const RecordList<Child>& children = state.saveAllChildList;
  const size_t nameless =
      children.find([](const Child& child) { return isInFamily(child) && child.name == newbornName; });
  if (nameless != children.size()) {
    needs.push_back({.priority = 210,
                     .picture = portraitOf(state, children[nameless]),
                     .title = "Your child has no name yet",
                     .subtitle = "It will stand on record sleeves one day",
                     .segue = "goToEditChildName",
                     .argument = std::to_string(nameless)});
    return;
  }
  const size_t distant = children.find([&](const Child& child) {
    return isInFamily(child) && ageOf(state, child) <= ageOfMajority && child.admiration < lowAdmiration;
  });
  if (distant == children.size()) return;
  needs.push_back({.priority = 130,
                   .picture = portraitOf(state, children[distant]),
                   .title = children[distant].name + " hardly looks up to you",
                   .subtitle = "Spend some time together",
                   .segue = "goToChildDetail",
                   .argument = std::to_string(distant)});
}

}  // namespace

void tearApart(const GameState& state, Poster& poster) {
  poster.style = Poster::Style::torn;
  poster.pictures.insert(poster.pictures.begin(), drawn(Picture::Kind::person, "sad", state.myArtistsName));
}

void addLifeNeeds(const Game& game, std::vector<Need>& needs) {
  addChildNeed(game.state, needs);
  const auto position = partnerPosition(game.state);
  if (!position) return addMatchNeed(game.state, needs);
  const Matches& partner = game.state.saveAllMatchesList[*position];
  if (partner.relationshipStatus >= lonelyBelow) return addNextStepNeed(game.state, partner, needs);
  needs.push_back({.priority = 220,
                   .picture = faceNow(game.state, partner),
                   .title = partner.name + " feels forgotten",
                   .subtitle = "Spend some time together",
                   .badge = "!",
                   .segue = "goToRelationshipHome"});
}

void addLifeNews(const Game& game, std::vector<News>& news) {
  const int64_t week = game.turn.before.absoluteWeek;
  addFirstMatch(game.state, week, news);
  addNewPartner(game.state, week, news);
  addWedding(game, week, news);
  addBreakUp(game.state, news);
  addBirth(game.state, news);
  addBirthdays(game.state, news);
}

}  // namespace backbeat
