#include "life/screens/fxy_match_list_view_controller.h"

#include "core/money.h"
#include "life/match_list.h"
#include "life/partner.h"

namespace backbeat {

namespace {

/// The mark of a row, and for who was or is a partner how long.
Row rowOf(const GameState& state, const Matches& match) {
  Row row{.picture = faceNow(state, match),
          .title = match.name,
          .subtitle = match.occupation,
          .opens = true,
          .id = "match:" + std::to_string(match.matchId)};
  if (match.relationshipState == love::matched) {
    if (match.superLike > 0) row.badge = "⭐️";
    return row;
  }
  const bool isOver = match.relationshipState < love::matched;
  row.badge = isOver ? "💔" : "❤️";
  row.value = lengthText(weeksTogether(state, match));
  row.note = "together";
  if (isOver) row.subtitle = match.breakupLine;
  return row;
}

}  // namespace

Outcome FxyMatchListViewController::appear() {
  sortMatches(game_);
  return {};
}

Outcome FxyMatchListViewController::act(const Action& action) {
  if (action.id == "matches") window_.moveTo(action.value);
  if (action.verb() != "match") return {};
  Outcome outcome = openMatchRow(game_, wholeNumber(action.argument()).value_or(-1));
  sortMatches(game_);
  return outcome;
}

View FxyMatchListViewController::view() const {
  const RecordList<Matches>& matches = state().saveAllMatchesList;
  View view{.title = "Messages", .theme = Theme::love};
  if (matches.empty()) {
    view.add(EmptyHint{.icon = "message", .text = "Nobody has liked you back yet. Swipe on."});
    return view;
  }
  view.subtitle = matches.size() == 1 ? "1 match" : withCommas(static_cast<int64_t>(matches.size())) + " matches";
  view.add(windowedRows("matches", window_, static_cast<int64_t>(matches.size()),
                        [&](size_t i) { return rowOf(state(), matches[i]); }));
  return view;
}

}  // namespace backbeat
