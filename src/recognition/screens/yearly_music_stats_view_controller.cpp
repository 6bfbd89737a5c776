#include "recognition/screens/yearly_music_stats_view_controller.h"

#include <algorithm>
#include <iterator>

#include "core/assisted.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/view_words.h"
#include "merch/catalogue.h"
#include "music/covers.h"
#include "recognition/year_in_review.h"

namespace backbeat {

namespace {

/// The words of each kind.
struct KindWords {
  const char* title;
  const char* amounts;  ///< what is counted
  const char* works;    ///< what had any of it
  const char* icon;
};
constexpr std::array<KindWords, 5> kinds = {{{"Songs", "streams", "songs heard", "note"},
                                             {"Albums", "units", "albums sold", "album"},
                                             {"Tours", "seats", "tours", "ticket"},
                                             {"Merch", "units", "products sold", "shirt"},
                                             {"Videos", "views", "videos watched", "video"}}};

const KindWords& wordsOf(YearKind kind) { return kinds[static_cast<size_t>(kind)]; }

std::string capital(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

/// "+12% on 2030"; nothing to say where there is nothing to compare with.
std::string changeOn(int64_t year, double now, double before) {
  if (before <= 0) return "";
  const double percent = (now - before) / before * 100;
  return (percent < 0 ? "" : "+") + withDecimals(percent, 0) + "% on " + std::to_string(year);
}

/// The first week of each quarter has its number below it.
std::vector<std::string> quarters() {
  constexpr size_t quarter = weeksOfYear / 4;
  std::vector<std::string> labels(weeksOfYear);
  for (size_t week = 0; week < weeksOfYear; week += quarter) labels[week] = "W" + std::to_string(week + 1);
  return labels;
}

}  // namespace

Outcome YearlyMusicStatsViewController::open() {
  const bool isNew = state().weekNumber == 1;  // nothing of it is recorded yet
  year_ = isNew ? state().yearNumber - 1 : state().yearNumber;
  return {};
}

Outcome YearlyMusicStatsViewController::appear() {
  look(year_, kind_);
  return {};
}

void YearlyMusicStatsViewController::look(int64_t year, YearKind kind) {
  if (year != year_ || kind != kind_) window_ = {};
  year_ = std::max(generationBegan(state()), std::min(year, state().yearNumber));
  kind_ = kind;
  now_ = yearOfKind(state(), kind_, year_);
  before_ = year_ > generationBegan(state()) ? yearOfKind(state(), kind_, year_ - 1) : YearOfKind();
}

Outcome YearlyMusicStatsViewController::act(const Action& action) {
  if (action.id == "year" && (action.value == "1" || action.value == "-1")) {
    look(year_ + (action.value == "1" ? 1 : -1), kind_);
  }
  if (action.id == "kind") {
    if (const auto kind = optionNumber(action.value, kinds.size())) look(year_, static_cast<YearKind>(*kind));
  }
  if (action.id == "works") window_.moveTo(action.value);
  if (action.id == "yearInReview" && hasReview(state(), year_)) return goTo("goToYearInReview", std::to_string(year_));
  return {};
}

View YearlyMusicStatsViewController::view() const {
  const std::string year = std::to_string(year_);
  View view{.title = "Yearly Statistics"};
  view.add(Stepper{.id = "year",
                   .label = "Year",
                   .value = year,
                   .canLess = year_ > generationBegan(state()),
                   .canMore = year_ < state().yearNumber});
  addAssistedMark(view, state());
  if (recordsAreGone(state(), year_)) {
    view.add(EmptyHint{.icon = "hourglass", .text = "No records of " + year + " are left"});
    return view;
  }
  Choice choice{
      .id = "kind", .label = "Kind", .selected = static_cast<int64_t>(kind_), .style = Choice::Style::segments};
  for (const KindWords& kind : kinds) choice.options.push_back({.label = kind.title});
  view.add(std::move(choice));
  describeSums(view);
  describeWorks(view);
  if (hasReview(state(), year_)) {
    view.add(Rows{{wayTo("yearInReview", "star", "Your year " + year, "Told in pictures, to keep and to share")}});
  }
  return view;
}

void YearlyMusicStatsViewController::describeSums(View& view) const {
  const KindWords& words = wordsOf(kind_);
  const auto amount = static_cast<double>(now_.amount);
  view.add(Chart{.title = capital(words.amounts),
                 .value = withCommas(now_.amount),
                 .note = changeOn(year_ - 1, amount, static_cast<double>(before_.amount)),
                 .tone = before_.amount > 0 ? toneOfChange(now_.amount - before_.amount) : Tone::plain,
                 .style = Chart::Style::bars,
                 .points = {now_.weeks.begin(), now_.weeks.end()},
                 .labels = quarters()});
  const auto best = std::max_element(now_.weeks.begin(), now_.weeks.end());
  Tiles tiles{{{.icon = "cash",
                .label = "Earned",
                .value = currency(now_.dollars),
                .note = changeOn(year_ - 1, now_.dollars, before_.dollars)},
               {.icon = words.icon,
                .label = capital(words.works),
                .value = withCommas(static_cast<int64_t>(now_.works.size()))},
               {.icon = "calendar",
                .label = "Best week",
                .value = *best > 0 ? "Week " + std::to_string(std::distance(now_.weeks.begin(), best) + 1) : "–",
                .note = *best > 0 ? abbreviated(static_cast<double>(*best)) + " " + words.amounts : ""}}};
  if (kind_ == YearKind::tours) {
    tiles.items[1] = {.icon = "ticket",
                      .label = "Shows",
                      .value = withCommas(now_.shows),
                      .note = withCommas(now_.soldOut) + " sold out"};
  }
  view.add(std::move(tiles));
}

void YearlyMusicStatsViewController::describeWorks(View& view) const {
  view.add(Heading{"Best of " + std::to_string(year_)});
  if (now_.works.empty()) {
    view.add(EmptyHint{.icon = wordsOf(kind_).icon, .text = "Nothing of this kind in " + std::to_string(year_)});
    return;
  }
  view.add(windowedRows("works", window_, static_cast<int64_t>(now_.works.size()),
                        [&](size_t i) { return rowOf(now_.works[i]); }));
}

Row YearlyMusicStatsViewController::rowOf(const YearWork& work) const {
  Row row{.picture = pictureOfWork(state(), kind_, work),
          .title = work.title,
          .subtitle = currency(work.dollars),
          .value = abbreviated(static_cast<double>(work.amount)),
          .note = wordsOf(kind_).amounts};
  const auto before = std::find_if(before_.works.begin(), before_.works.end(),
                                   [&](const YearWork& other) { return other.id == work.id; });
  if (before != before_.works.end()) {
    row.subtitle += " · " + abbreviated(static_cast<double>(before->amount)) + " in " + std::to_string(year_ - 1);
  }
  return row;
}

}  // namespace backbeat
