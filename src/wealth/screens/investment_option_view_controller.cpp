#include "wealth/screens/investment_option_view_controller.h"

#include <utility>

#include "core/money.h"
#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t aPitch = 0;
constexpr size_t half = 1;

}  // namespace

Outcome InvestmentOptionViewController::open() {
  const int64_t index = std::exchange(game_.launch.ventures.ventureDealIndex, -1);
  if (index < 0) return {};
  const auto position = static_cast<size_t>(index);
  const auto& ventures = state().saveAllVentureInvestments;
  if (game_.launch.ventures.ventureDealKind == aPitch) {
    if (position < companies.size()) offer_ = drawPitch(game_.random, companies[position]);
  } else if (position < ventures.size() && isRoundDue(ventures[position])) {
    offer_ = drawRaise(game_.random, ventures[position]);
  }
  return {};
}

int64_t InvestmentOptionViewController::percentOf(size_t option) const {
  return option == half ? offer_->percent / 2 : offer_->percent;
}

Outcome InvestmentOptionViewController::act(const Action& action) {
  if (action.id == "investButton") return investButton();
  if (action.id == "passButton") return passButton();
  if (action.id == "stake") option_ = optionNumber(action.value, 2).value_or(option_);
  return {};
}

Outcome InvestmentOptionViewController::investButton() {
  if (!offer_) return {};
  Outcome outcome = invest(game_, *offer_, percentOf(option_));
  if (outcome.done()) outcome += closeScreen();
  return outcome;
}

Outcome InvestmentOptionViewController::passButton() {
  Outcome outcome = offer_ ? passRound(game_, *offer_) : success();
  outcome += closeScreen();
  return outcome;
}

std::string InvestmentOptionViewController::nameOf() const {
  const Company* company = companyWithId(offer_->businessId);
  return company ? std::string(company->businessName) : "";
}

void InvestmentOptionViewController::describeCompany(View& view) const {
  const Company* company = companyWithId(offer_->businessId);
  if (!company) return;
  view.add(Cover{.picture = markOf(company->businessImage, company->businessName),
                 .title = std::string(company->businessName),
                 .text = std::string(company->businessTagline),
                 .badge = roundName(offer_->round)});
  view.add(Text{.text = std::string(company->businessDescription)});
}

void InvestmentOptionViewController::describeOptions(View& view) const {
  Choice choice{.id = "stake", .label = "Your part of the round", .selected = static_cast<int64_t>(option_)};
  for (const size_t option : {size_t{0}, half}) {
    const int64_t percent = percentOf(option);
    choice.options.push_back({.label = withCommas(sharesFor(*offer_, percent)) + " shares (" + std::to_string(percent) +
                                       "% stake in " + nameOf() + ")" + (option == half ? "" : " • Fully Funded"),
                              .note = currency(costOf(*offer_, percent).dollars)});
  }
  view.add(std::move(choice));
}

void InvestmentOptionViewController::describeStake(View& view) const {
  const StakeAfter after = stakeAfter(state(), *offer_, percentOf(option_));
  view.add(
      Tiles{{{.label = "You would own", .value = withDecimals(after.percent, 1) + "%", .note = "of the company"},
             {.label = "Worth at this price", .value = abbreviatedDollars(after.dollars), .note = "your whole part"},
             {.label = "Pays above", .value = abbreviatedDollars(after.paysAbove), .note = "for all of " + nameOf()}}});
  const std::string valuation = currency(static_cast<double>(offer_->capitalRaiseThisRound));
  std::string words = "The round values " + nameOf() + " at " + valuation +
                      ". Your money comes back when it is bought or goes public, and that is after Series C.";
  if (offer_->round > funding_round::seed) {
    words += " If you pass, others take the round and " + withDecimals(stakeAfter(state(), *offer_, 0).percent, 1) +
             "% stays yours.";
  }
  view.add(caption(std::move(words)));
}

View InvestmentOptionViewController::view() const {
  View view{.title = "Pitch Deck", .theme = Theme::bank};
  if (!offer_) {
    view.add(EmptyHint{.icon = "rocket", .text = "The founders have found their money. There will be other decks."});
    view.mainAction = Button{.id = "passButton", .label = "Close", .style = Button::Style::primary};
    return view;
  }
  if (offer_->round > funding_round::seed) view.title = "Venture Raise";
  describeCompany(view);
  describeOptions(view);
  describeStake(view);
  view.mainAction = Button{.id = "investButton",
                           .label = "Invest",
                           .price = costOf(*offer_, percentOf(option_)),
                           .style = Button::Style::primary};
  view.aside = Button{.id = "passButton", .label = "Pass"};
  return view;
}

}  // namespace backbeat
