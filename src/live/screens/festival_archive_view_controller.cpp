#include "live/screens/festival_archive_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "live/festival_invitation.h"
#include "live/festivals.h"
#include "live/screens/festival_bill.h"

namespace backbeat {

namespace {

/// Where the artist stands on a bill that was booked, from 1; 0 when the name is not on it any more.
size_t ownPlace(const GameState& state, const Festival& festival, const std::vector<std::string>& acts) {
  if (festival.isHeadliner == 1) return 1;
  const auto own = std::find(acts.begin(), acts.end(), state.myArtistsName);
  return own == acts.end() ? 0 : static_cast<size_t>(own - acts.begin()) + 1;
}

}  // namespace

bool FestivalArchiveViewController::isAhead(const Festival& festival) const {
  return festival.weekNumberForTracking >= state().weekNumberForTracking;
}

/// What is ahead comes before what is past, and in both the nearer one first.
bool FestivalArchiveViewController::comesFirst(const Festival& a, const Festival& b) const {
  if (isAhead(a) != isAhead(b)) return isAhead(a);
  return (a.weekNumberForTracking < b.weekNumberForTracking) == isAhead(a);
}

Outcome FestivalArchiveViewController::open() {
  const Festival* shown = nullptr;
  for (const Festival& festival : state().saveAllFestivalList) {
    if (!shown || comesFirst(festival, *shown)) shown = &festival;
  }
  if (shown) selected_ = shown->id;
  return {};
}

Outcome FestivalArchiveViewController::act(const Action& action) {
  if (action.id == "past") past_.moveTo(action.value);
  if (action.verb() == "festival") selected_ = wholeNumber(action.argument()).value_or(selected_);
  return {};
}

Row FestivalArchiveViewController::describe(const Festival& festival) const {
  Row row{.picture = drawn(Picture::Kind::scene, "festival", festival.festivalName),
          .title = festival.festivalName,
          .note = currency(festival.payment),
          .badge = festival.isHeadliner == 1 ? "HEADLINER" : "",
          .selected = festival.id == selected_,
          .id = "festival:" + std::to_string(festival.id)};
  const int64_t weeks = state().weekNumberForTracking - festival.weekNumberForTracking;
  if (isAhead(festival)) {
    row.subtitle = weeks == 0 ? "This week" : "In " + counted(-weeks, "week");
    return row;
  }
  row.subtitle = std::to_string(weeks) + " Weeks Ago · " + withCommas(festival.audience) + " Attended";
  row.value = reviewed(festival) ? starText(festival) : "";
  return row;
}

void FestivalArchiveViewController::describeSelected(View& view) const {
  const RecordList<Festival>& festivals = state().saveAllFestivalList;
  const size_t found = festivals.find([&](const Festival& festival) { return festival.id == selected_; });
  if (found == festivals.size()) return;
  const Festival& festival = festivals[found];
  const std::vector<std::string> acts = actsOf(festival.lineupString);
  const size_t place = ownPlace(state(), festival, acts);
  view.add(
      Bill{.kicker = "Week " + std::to_string(festival.weekNumber) + ", " + std::to_string(festival.yearNumber),
           .title = festival.festivalName,
           .text = withCommas(festival.audience) + (isAhead(festival) ? " expected" : " Attended"),
           .acts = billActs(acts, place),
           .facts = {{.label = "Your fee", .value = currency(festival.payment), .tone = Tone::good},
                     {.label = festival.isHeadliner == 1 ? "Headliner" : "General Lineup",
                      .value = place > 0 ? placeText(place, acts.size()) : "–"},
                     {.label = reviewed(festival) ? "Review" : "Songs",
                      .value = reviewed(festival) ? starText(festival) : std::to_string(festival.setListId.size())}}});
  if (reviewed(festival)) view.add(Text{.text = "“" + festival.topReview + "”", .style = Text::Style::lead});
}

View FestivalArchiveViewController::view() const {
  View view{.title = "Festivals", .theme = Theme::live};
  const RecordList<Festival>& festivals = state().saveAllFestivalList;
  if (festivals.empty()) {
    view.add(EmptyHint{.icon = "ticket",
                       .text = "No festival yet. From 50,000 listeners on, with a song of the last years, the week's "
                               "chances bring invitations."});
    return view;
  }
  describeSelected(view);
  Rows ahead;
  std::vector<size_t> past;
  for (size_t i = festivals.size(); i-- > 0;) {
    if (isAhead(festivals[i])) {
      ahead.items.push_back(describe(festivals[i]));
    } else {
      past.push_back(i);
    }
  }
  sortStably(past, [&](size_t a, size_t b) {
    return festivals[a].weekNumberForTracking > festivals[b].weekNumberForTracking;
  });
  if (!ahead.items.empty()) {
    view.add(Heading{"Booked"});
    view.add(std::move(ahead));
  }
  if (!past.empty()) {
    view.add(Heading{"Played"});
    view.add(windowedRows("past", past_, static_cast<int64_t>(past.size()),
                          [&](size_t i) { return describe(festivals[past[i]]); }));
  }
  return view;
}

}  // namespace backbeat
