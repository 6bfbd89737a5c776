#include "label/news.h"

#include <algorithm>

#include "core/money.h"
#include "label/staff.h"

namespace backbeat {

void addLabelNeeds(const Game& game, std::vector<Need>& needs) {
  const GameState& state = game.state;
  if (state.isLabelLaunched < 1) return;
  const RecordList<Employee>& staff = state.saveAllEmployeeList;
  if (staff.empty()) {
    needs.push_back({.priority = 170,
                     .picture = icon("label"),
                     .title = state.myLabelName + " has no staff",
                     .subtitle = "Nobody scouts, nobody sells",
                     .segue = "goToLabelDetail"});
    return;
  }
  const auto unhappy = std::count_if(staff.begin(), staff.end(),
                                     [](const Employee& employee) { return employee.employeeMorale < unhappyBelow; });
  if (unhappy == 0) return;
  needs.push_back(
      {.priority = 145,
       .picture = icon("people"),
       .title = unhappy == 1 ? "One of your staff is unhappy" : std::to_string(unhappy) + " of your staff are unhappy",
       .subtitle = "Their ratings will fall",
       .segue = "goToLabelDetail"});
}

void addLabelNews(const Game& game, std::vector<News>& news) {
  // Only a label that closes forgets whom it signed.
  constexpr int64_t firstId = 1;
  const RecordList<SignedArtist>& artists = game.state.saveAllSignedArtistList;
  if (artists.empty() || artists[0].artistId != firstId || artists[0].weekSigned != game.turn.before.absoluteWeek) {
    return;
  }
  news.push_back({.kind = News::Kind::first,
                  .rank = 520,
                  .key = "first signing",
                  .picture = person(artists[0].name),
                  .kicker = "The first artist of " + game.state.myLabelName,
                  .headline = artists[0].name + " signed with you",
                  .text = abbreviated(static_cast<double>(artists[0].monthlyListeners)) + " people listen already"});
}

}  // namespace backbeat
