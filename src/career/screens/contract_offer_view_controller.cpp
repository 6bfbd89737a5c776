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
  return game_.launch.contractOfferState == 2 && state().underContract == 0 && state().isLabelLaunched < 1;
}

View ContractOfferViewController::view() const {
  View view{.title = "Label contract"};
  view.help = Help{
      .title = "How labels work",
      .text =
          "A label that likes your numbers may write in any week once you have more than 35,000 listeners; the "
          "more listeners, the greater the label. Its offer may be gone when the week ends.\n\nA deal brings cash at "
          "once, better pay for each stream and view, a studio, marketing, and tours. In return the label takes "
          "its share and expects records by a deadline. Miss it and you pay the signing bonus back."};
  if (!hasOffer()) {
    view.add(EmptyHint{.icon = "label",
                       .text = state().isLabelLaunched >= 1
                                   ? "You run a label of your own. No other will write to you."
                                   : "There is no offer on the table. Labels write to artists with more than 35,000 "
                                     "listeners; the more people listen, the better the label."});
    return view;
  }
  const ContractOffer& offer = game_.launch.contractOffer;
  const RecordLabel& label = recordLabelOf(offer.contractLevel);
  const ContractLabel contract = contractOf(state(), offer);
  view.add(Cover{
      .picture = cover(label.image),
      .title = label.recordLabel,
      .text = std::string(label.marketingPower) + " label\n" + "$" + abbreviated(label.revenueLabel) + " a year"});
  view.add(Text{.text = offerGreeting(offer), .style = Text::Style::lead});
  view.add(Tiles{
      {{.icon = "cash", .label = "Signing bonus", .value = currency(contract.initialCash), .tone = Tone::good},
       {.icon = "label",
        .label = "Their share",
        .value = withDecimals(offer.tempPercentageRate * 100, 0) + "%",
        .tone = Tone::bad},
       {.icon = "hourglass", .label = "Deadline", .value = counted(offer.tempEndDate - offer.tempStartDate, "week")}}});
  view.add(Heading{"What they give"});
  view.add(contractTerms(contract, offer.tempViewingRates));
  view.add(Text{.text = offerDeal(offer)});
  view.add(Heading{"What they expect"});
  view.add(Tiles{{{.icon = "album", .label = "EPs", .value = std::to_string(offer.tempEp)},
                  {.icon = "album", .label = "LPs", .value = std::to_string(offer.tempLp)},
                  {.icon = "note", .label = "Songs", .value = std::to_string(offer.tempSongs)}}});
  view.add(Text{.text = offerExpectations(offer)});
  view.mainAction = Button{.id = "signContract", .label = "Sign contract", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
