#include "music/screens/monthly_listener_detail_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr const char* chartHeading = "\nLAST SIX MONTHS";

int64_t weeklyChange(const std::vector<int64_t>& data) { return data.back() - data[data.size() - 2]; }
int64_t sixMonthChange(const std::vector<int64_t>& data) { return data.back() - data.front(); }

/// Texts that open with a line break leave room above them on a page of print; a block stands apart by itself.
std::string withoutLeadingBreak(const std::string& text) { return text.starts_with('\n') ? text.substr(1) : text; }

}  // namespace

std::string listenersThisWeek(const GameState& state) {
  const std::vector<int64_t>& data = state.monthlyListenerData;
  if (data.size() < 2) return "";
  const int64_t change = weeklyChange(data);
  const int64_t before = data[data.size() - 2];
  const double percentage = before == 0 ? 0 : static_cast<double>(change) / static_cast<double>(before) * 100;
  return "\n" + withCommas(change) + (change < 1 ? " listeners this week (" : " new listeners this week (") +
         withDecimals(percentage, 2) + "%)";
}

std::string listenersInSixMonths(const GameState& state) {
  const std::vector<int64_t>& data = state.monthlyListenerData;
  return data.size() < 2 ? "" : withCommas(sixMonthChange(data)) + " in the past six months";
}

View MonthlyListenerDetailViewController::view() const {
  View view{.title = "Monthly Listeners"};
  const std::vector<int64_t>& data = state().monthlyListenerData;
  Figure total{
      .label = "Listeners", .value = withCommas(state().totalFans), .amount = static_cast<double>(state().totalFans)};
  if (data.size() >= 2) {
    total.note = withoutLeadingBreak(listenersThisWeek(state()));
    total.tone = toneOfChange(weeklyChange(data));
  }
  view.add(Figures{.items = {std::move(total)}, .style = Figures::Style::large});
  if (data.empty()) {
    view.add(EmptyHint{.icon = "headphones",
                       .text = state().totalFans > 0 ? "End the week to see how many come and go."
                                                     : "Nobody listens yet. Release a song and end the week."});
  } else {
    view.add(Heading{withoutLeadingBreak(chartHeading)});
    view.add(Chart{.title = "Monthly Listeners",
                   .note = listenersInSixMonths(state()),
                   .tone = toneOfChange(sixMonthChange(data)),
                   .points = {data.begin(), data.end()}});
  }
  view.help =
      Help{.title = "Monthly listeners",
           .text =
               "The one measure of fame. Listeners come while the latest song and album are fresh, the more the "
               "better the songs of the last two years are. Long silence drives them away."};
  return view;
}

}  // namespace backbeat
