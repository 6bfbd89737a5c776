#include "wealth/screens/forbes_detail_view_controller.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/own_photo.h"
#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/career_records.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

Gauge partOf(const char* label, double value, double whole) {
  return {.label = label, .value = abbreviatedDollars(value), .share = shareOf(value, whole)};
}

Row lineOf(std::string label, std::string value, std::string about = {}) {
  return {.title = std::move(label), .subtitle = std::move(about), .value = std::move(value)};
}

std::string changeOf(const RichListVisit& visit) {
  const std::string amount = abbreviatedDollars(std::fabs(visit.change));
  const std::string said = amount == "$0" ? "unchanged" : (visit.change < 0 ? "down " : "up ") + amount;
  if (visit.isFirst) return amount == "$0" ? "" : said + " from nothing";
  return said + " since your last visit";
}

}  // namespace

Outcome ForbesDetailViewController::open() {
  visit_ = visitRichList(game_);
  return {};
}

Outcome ForbesDetailViewController::act(const Action&) { return {}; }

View ForbesDetailViewController::view() const {
  View view{.title = "Farbes", .subtitle = "PROFILE", .theme = Theme::estate};
  view.add(Poster{.pictures = {artistPicture(state())},
                  .kicker = "in the world today",
                  .title = state().myArtistsName,
                  .figure = worldRank(visit_.netWorth)});
  describeFortune(view);
  describeProfile(view);
  view.help = Help{.title = "Farbes",
                   .text =
                       "Your net worth is your cash and what ventures, property and garage would bring today. From a "
                       "hundredth of the greatest fortune on, you have a place in the world."};
  return view;
}

void ForbesDetailViewController::describeFortune(View& view) const {
  view.add(Chart{.title = "Real Time Net Worth",
                 .value = abbreviatedDollars(visit_.netWorth),
                 .note = changeOf(visit_),
                 .tone = toneOfChange(visit_.change)});
  const double ventures = venturesValue(state());
  const double property = propertiesValue(state());
  const double garage = transportationValue(state());
  const double cash = state().totalCashAvailable;
  double whole = 0;  // what is a debt is no part of it
  for (const double part : {ventures, property, garage, cash}) whole += std::max(part, 0.0);
  view.add(Gauges{.items = {partOf("Ventures", ventures, whole), partOf("Property", property, whole),
                            partOf("Garage", garage, whole), partOf("Cash", cash, whole)},
                  .style = Gauges::Style::split});
}

void ForbesDetailViewController::describeProfile(View& view) const {
  Rows profile{{{.title = "Source of Wealth", .subtitle = sourceOfWealth(state())},
                lineOf("Self-Made Score", std::to_string(selfMadeScore(state()))),
                lineOf("Philanthropy Score", std::to_string(philanthropyScore(state()))),
                lineOf("Martial Status", maritalStatus(state()))}};  // the paper has always spelt it so
  for (RecordLine& record : careerRecords(state())) {
    profile.items.push_back(lineOf(std::move(record.label), std::move(record.value), std::move(record.note)));
  }
  view.add(std::move(profile));
}

}  // namespace backbeat
