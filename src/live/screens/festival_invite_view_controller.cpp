#include "live/screens/festival_invite_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "live/festivals.h"
#include "live/screens/festival_bill.h"
#include "live/screens/set_list_words.h"
#include "music/covers.h"

namespace backbeat {

namespace {

std::string genresOf(const FestivalInvitation& invitation) {
  std::string text;
  for (const std::string_view genre : invitation.genres) {
    if (!genre.empty()) text += (text.empty() ? "" : ", ") + std::string(genre);
  }
  return text;
}

Bill billOf(const GameState& state, const FestivalInvitation& invitation) {
  const auto place = static_cast<size_t>(invitation.place());
  const CalendarWeek week{invitation.festivalWeekNumber, invitation.festivalYear};
  const std::string genres = genresOf(invitation);
  return {.kicker = "INVITATION",
          .title = invitation.saveName,
          .text = invitation.location + " · " + dayOfWeek(week) + (genres.empty() ? "" : " · " + genres) + "\nEst. " +
                  withCommas(invitation.saveAudience) + " in attendence",
          .acts = billActs(invitation.acts, place),
          .facts = {{.label = "Your fee", .value = currency(invitation.savePayment), .tone = Tone::good},
                    {.label = invitation.saveCanHeadline ? "Headliner" : "General Lineup",
                     .value = placeText(place, invitation.acts.size())},
                    {.label = "In",
                     .value = counted(invitation.festivalWeekForTracking - state.weekNumberForTracking, "week")}}};
}

/// What is picked so far: the first two by name.
Row setListRow(const GameState& state, const std::vector<int64_t>& setList) {
  Row row = wayTo("goToChooseSetList", "note", "Set list", "Nothing chosen yet", setListCount(setList));
  if (setList.empty()) return row;
  row.subtitle.clear();
  fanOutCovers(row, state, setList);
  size_t named = 0;
  for (size_t i = 0; i < setList.size() && named < 2; ++i) {
    const Song* song = releasedSongOf(state, setList[i]);
    if (!song) continue;
    row.subtitle += (named++ == 0 ? "" : ", ") + song->title;
  }
  if (setList.size() > named) row.subtitle += " and " + std::to_string(setList.size() - named) + " more";
  const double average = songSelectionAverage(state, setList);
  row.note = "avg " + withDecimals(average, 0);
  row.tone = toneOfBand(average);
  return row;
}

}  // namespace

Outcome FestivalInviteViewController::open() {
  invitation_ = drawFestivalInvitation(game_);
  return {};
}

Outcome FestivalInviteViewController::act(const Action& action) {
  if (action.id == "goToChooseSetList") return goToChooseSetList();
  if (action.id == "acceptFestival") return acceptFestival(game_, invitation_);
  if (action.id == "declineButton") return closeScreen();
  return {};
}

Outcome FestivalInviteViewController::goToChooseSetList() { return goTo("goToChooseSetList"); }

View FestivalInviteViewController::view() const {
  View view{.title = "Festival Invite", .theme = Theme::live};
  view.add(billOf(state(), invitation_));
  view.add(Rows{{setListRow(state(), game_.launch.festivalSetList)}});
  view.add(caption("The papers judge by the songs you choose. The fee comes with the report of that week."));
  view.aside = Button{.id = "declineButton", .label = "Decline"};
  view.mainAction = Button{.id = "acceptFestival",
                           .label = "Accept",
                           .style = Button::Style::primary,
                           .tone = game_.launch.festivalSetList.empty() ? Tone::locked : Tone::plain};
  return view;
}

}  // namespace backbeat
