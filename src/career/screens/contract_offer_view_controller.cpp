#include "career/screens/contract_offer_view_controller.h"

#include "career/contract_offers.h"
#include "career/contract_terms.h"
#include "core/money.h"

namespace backbeat {

Outcome ContractOfferViewController::open() {
  drawContractOffer(game_);
  return {};
}

Outcome ContractOfferViewController::act(const Action& action) {
  if (action.id != "signContract" || !hasOffer()) return {};
  Outcome outcome = signContract(game_);
  outcome += closeScreen();
  return outcome;
}

bool ContractOfferViewController::hasOffer() const {
  return game_.launch.contractOfferState == 2 && state().underContract == 0;
}

View ContractOfferViewController::view() const {
  View view;
  view.title = "Label contract";
  view.help =
      Help{"How labels work",
           "A label that likes your numbers may write in any week once you have more than 35,000 listeners; the "
           "more listeners, the greater the label. Its offer waits until the week ends.\n\nA deal brings cash at "
           "once, better pay for each stream and view, a studio, marketing, and tours. In return the label takes "
           "its share and expects records by a deadline. Miss it and you pay the signing bonus back."};
  if (!hasOffer()) {
    view.add(EmptyHint{"label", state().isLabelLaunched >= 1
                                    ? "You run a label of your own. No other will write to you."
                                    : "There is no offer on the table. Labels write to artists with more than 35,000 "
                                      "listeners; the more people listen, the better the label."});
    return view;
  }
  const ContractOffer& offer = game_.launch.contractOffer;
  const RecordLabel& label = recordLabelOf(offer.contractLevel);
  const ContractLabel contract = contractOf(state(), offer);
  const std::string weeks = counted(offer.tempEndDate - offer.tempStartDate, "week");
  Cover head;
  head.picture = cover(label.image);
  head.title = label.recordLabel;
  head.text = std::string(label.marketingPower) + " label\n" + "$" + abbreviated(label.revenueLabel) + " a year";
  view.add(std::move(head));
  view.add(Text{offerGreeting(offer), Tone::plain, Text::Style::lead});
  Tiles deal;
  deal.items.push_back({"cash", "Signing bonus", currency(contract.initialCash), "", Tone::good, ""});
  deal.items.push_back(
      {"label", "Their share", withDecimals(offer.tempPercentageRate * 100, 0) + "%", "", Tone::bad, ""});
  deal.items.push_back({"hourglass", "Deadline", weeks, "", Tone::plain, ""});
  view.add(std::move(deal));
  view.add(Heading{"What they give", {}});
  view.add(contractTerms(contract, offer.tempViewingRates));
  view.add(Text{offerDeal(offer)});
  view.add(Heading{"What they expect", {}});
  Tiles quota;
  quota.items.push_back({"album", "EPs", std::to_string(offer.tempEp), "", Tone::plain, ""});
  quota.items.push_back({"album", "LPs", std::to_string(offer.tempLp), "", Tone::plain, ""});
  quota.items.push_back({"note", "Songs", std::to_string(offer.tempSongs), "", Tone::plain, ""});
  view.add(std::move(quota));
  view.add(Text{offerExpectations(offer)});
  Button sign;
  sign.id = "signContract";
  sign.label = "Sign Contract";
  sign.style = Button::Style::primary;
  view.mainAction = std::move(sign);
  return view;
}

}  // namespace backbeat
