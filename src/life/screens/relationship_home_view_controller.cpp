#include "life/screens/relationship_home_view_controller.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "life/engagement.h"
#include "life/partner.h"
#include "life/relationship.h"

namespace backbeat {

namespace {

constexpr double fullMeter = 100;
constexpr int64_t weeksOfMonth = 4;
constexpr int64_t monthsOfPregnancy = 9;

Poster coupleOf(const GameState& state, const Matches& partner) {
  return {.pictures = {artistPicture(state), faceNow(state, partner)},
          .facts = {{.label = "Together", .value = lengthText(weeksTogether(state, partner))},
                    {.label = "Temper", .value = temperText(partner.maintenance)}},
          .meter = Meter{.label = "Your relationship",
                         .value = std::to_string(truncate(partner.relationshipStatus)),
                         .share = std::clamp(partner.relationshipStatus / fullMeter, 0.0, 1.0),
                         .tone = toneOfBand(partner.relationshipStatus)}};
}

int64_t weeksCarried(const Matches& partner) { return weeksOfPregnancy - partner.timeToBirth; }

/// What is ahead of the two: the birth, the wedding, the proposal.
void describeAhead(View& view, const GameState& state, const Matches& partner) {
  if (partner.timeToBirth >= 0) {
    const int64_t weeks = std::clamp<int64_t>(weeksCarried(partner), 0, weeksOfPregnancy);
    view.add(Meter{.label = "A baby is on the way",
                   .value = "week " + std::to_string(weeks) + " of " + std::to_string(weeksOfPregnancy),
                   .share = shareOf(weeks, weeksOfPregnancy),
                   .steps = weeksOfPregnancy});
    return;
  }
  if (isMarried(partner)) return;
  const int64_t weeks = weeksToNextStep(partner) + 1 - weeksTogether(state, partner);
  const std::string step = partner.relationshipState == love::engaged ? "wedding" : "proposal";
  view.add(caption(weeks > 0 ? "Ready for a " + step + " in " + lengthText(weeks) + "." : "Time for a " + step + "."));
}

Tile mainTile(const GameState& state, const Matches& partner) {
  if (partner.timeToBirth >= 0) {
    const int64_t month = std::clamp<int64_t>(weeksCarried(partner) / weeksOfMonth + 1, 1, monthsOfPregnancy);
    return {.icon = "pram",
            .label = "Month " + std::to_string(month) + " of " + std::to_string(monthsOfPregnancy),
            .note = "due in " + std::to_string(partner.timeToBirth)};
  }
  Tile tile{.icon = "ring", .label = "PROPOSE", .id = "mainAction"};
  if (partner.relationshipState == love::engaged) {
    tile.icon = "flower";
    tile.label = "WEDDING";
  }
  if (isMarried(partner)) {
    tile.icon = "pram";
    tile.label = fertilityBlocked(state) ? "ADOPT" : "MAKE A BABY";
    tile.price = babyCost;
  }
  return tile;
}

}  // namespace

Outcome RelationshipHomeViewController::act(const Action& action) {
  if (action.id == "qualityTime") return qualityTime(game_);
  if (action.id == "compliment") return compliment(game_);
  if (action.id == "serenade") return serenade(game_);
  if (action.id == "askForMoney") return askForMoney(game_);
  if (action.id == "breakup") return askToBreakUp(game_, {"breakupConfirmed", ""});
  if (action.id == "breakupConfirmed") return breakup(game_);
  if (action.id == "mainAction") return mainAction(game_);
  if (action.id == "signPrenup") return wed(game_, true);
  if (action.id == "noPrenup") return wed(game_, false);
  for (const char* way : {"goToFXYDating", "goToProfilePartner", "goToFxyMatchList"}) {
    if (action.id == way) return goTo(way);
  }
  return {};
}

View RelationshipHomeViewController::view() const {
  View view{.title = "Relationship", .theme = Theme::love};
  const auto position = partnerPosition(state());
  if (position) {
    describe(view, state().saveAllMatchesList[*position]);
    return view;
  }
  view.subtitle = "Single";
  view.add(Poster{.pictures = {artistPicture(state())},
                  .kicker = "FXY DATING APP",
                  .title = "Single",
                  .text = "Love costs time and gives energy. Somebody is a swipe away."});
  view.mainAction = Button{.id = "goToFXYDating", .label = "FIND A MATCH", .style = Button::Style::primary};
  return view;
}

void RelationshipHomeViewController::describe(View& view, const Matches& partner) const {
  view.title = partner.name;
  view.subtitle = statusText(partner);
  view.add(coupleOf(state(), partner));
  describeAhead(view, state(), partner);
  view.add(Tiles{{{.icon = "wine", .label = "Quality Time", .id = "qualityTime", .price = qualityTimeCost},
                  {.icon = "message", .label = "Compliment", .id = "compliment", .price = complimentCost},
                  {.icon = "mic", .label = "Serenade", .id = "serenade", .price = serenadeCost},
                  {.icon = "cash", .label = "ASK FOR MONEY", .id = "askForMoney", .price = askForMoneyCost(state())},
                  mainTile(state(), partner),
                  {.icon = "heartBroken", .label = "Break Up", .id = "breakup", .price = breakupCost}}});
  view.add(Rows{.items = {wayTo("goToProfilePartner", "person", "Profile", "Who " + partner.name + " is"),
                          wayTo("goToFxyMatchList", "message", "Messages", "A look at them is a risk")}});
  view.help =
      Help{.title = "❤️ LOVE ❤️",
           .text =
               "Every week takes a little of your relationship, the more the more somebody asks for. Below zero "
               "it ends, and takes more energy than it gave.\n\nDates, compliments and serenades bring you "
               "closer. For a proposal it takes time and 85 points, for a wedding more time, 75 points and "
               "$25,000."};
}

}  // namespace backbeat
