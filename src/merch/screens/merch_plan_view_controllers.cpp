#include "merch/screens/merch_plan_view_controllers.h"

#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr int64_t daysInWeek = 7;

std::string days(int64_t weeks) { return counted(weeks * daysInWeek, "day"); }

std::vector<Fact> factsOf(const MerchService& service, const MerchPlan& plan) {
  switch (service.kind) {
    case MerchService::Kind::website: return {{.label = feeName(plan.fee), .value = withDecimals(plan.fee, 1) + "%"}};
    case MerchService::Kind::manufacturing:
      return {{.label = "product lines", .value = std::to_string(plan.limit)},
              {.label = "per 10,000 units", .value = days(plan.weeks)}};
    case MerchService::Kind::logistics:
      return {{.label = "units in store", .value = withCommas(plan.limit)},
              {.label = "to ship", .value = days(plan.weeks)}};
  }
  return {};
}

std::string noteOn(const MerchPlan& plan) {
  if (plan.fee >= dynamicFee) return "What runs out sells for more; nothing is sold at shows";
  return plan.fee >= onsiteFee ? "Sells at the shows of a tour too" : "";
}

}  // namespace

Outcome MerchPlanViewController::act(const Action& action) {
  if (action.id == "cancelButton") return cancelMerchPlan(game_, service_);
  if (action.id == "plan") {
    if (const auto number = optionNumber(action.value, service_.plans.size())) {
      return chooseMerchPlan(game_, service_, *number);
    }
  }
  return {};
}

View MerchPlanViewController::view() const {
  View view{.title = std::string(service_.name), .theme = Theme::merch};
  view.add(Text{.text = std::string(service_.lead), .style = Text::Style::lead});
  const auto current = currentPlan(state(), service_);
  Choice plans{.id = "plan",
               .label = "Plans",
               .selected = current ? static_cast<int64_t>(*current) : -1,
               .style = Choice::Style::cards};
  for (size_t i = 0; i < service_.plans.size(); ++i) {
    const MerchPlan& plan = service_.plans[i];
    plans.options.push_back({.label = std::string(plan.name),
                             .note = noteOn(plan),
                             .value = currency(plan.weeklyPrice) + " a week",
                             .facts = factsOf(service_, plan),
                             .action = current == i ? "Current plan" : "Select this plan"});
  }
  view.add(std::move(plans));
  view.add(
      caption("A switch costs nothing now; the week's account charges it from this week on. What is made already "
              "keeps its terms. Cancelling ends charge and service at once, and waits until all products are "
              "retired."));
  view.mainAction = Button{.id = "cancelButton", .label = "Cancel Plan", .style = Button::Style::destructive};
  if (!current && !isSetUp(state(), service_)) view.mainAction->tone = Tone::locked;
  return view;
}

}  // namespace backbeat
