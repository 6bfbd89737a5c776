#include "career/screens/signed_contract_view_controller.h"

#include "career/contract_end.h"
#include "career/contract_terms.h"
#include "career/label_contract.h"
#include "core/money.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr int64_t pressingWeeks = 8;

Meter quota(const std::string& label, int64_t released, int64_t expected) {
  return {.label = label,
          .value = expected < 1 ? "None asked for" : std::to_string(released) + " of " + std::to_string(expected),
          .share = expected < 1 ? 1 : shareOf(released, expected),
          .tone = released >= expected ? Tone::good : Tone::plain};
}

Tone urgency(bool fulfilled, int64_t weeksLeft) {
  if (fulfilled) return Tone::good;
  return weeksLeft < 1 ? Tone::bad : weeksLeft <= pressingWeeks ? Tone::warning : Tone::plain;
}

}  // namespace

Outcome SignedContractViewController::act(const Action& action) {
  if (action.id == "endContract") return endContract(state());
  if (action.id == "confirmEndContract") return confirmEndContract(game_);
  return {};
}

View SignedContractViewController::view() const {
  View view{.title = "Label contract"};
  const size_t running = runningContract(state());
  if (running == state().saveAllContractLabelList.size()) {
    view.add(EmptyHint{.icon = "label", .text = "You are under no contract."});
    return view;
  }
  const ContractLabel& contract = state().saveAllContractLabelList[running];
  const int64_t weeksLeft = contractWeeksLeft(state(), contract);
  const bool fulfilled = contractFulfilled(contract);
  view.title = contract.recordLabel;
  view.subtitle = "Contract (" + std::to_string(weeksLeft) + " Weeks Left)";
  view.add(Text{
      .text = contractOutlook(state(), contract), .tone = urgency(fulfilled, weeksLeft), .style = Text::Style::lead});
  view.add(quota("EPs", contract.epReleased, contract.numberOfEP));
  view.add(quota("LPs", contract.lpReleased, contract.numberOfLP));
  view.add(quota("Songs", contract.songsReleased, contract.numberOfSongs));
  view.add(Heading{"Your terms"});
  view.add(contractTerms(contract, state().youViewStreamingRate));
  view.add(Heading{"The way out"});
  view.add(Text{
      .text = fulfilled ? "You owe nothing, and the deal runs on until you end it. Without the deal your rates go "
                          "back to those of a free artist; what is out "
                          "keeps the rates it was made with."
                        : "Leaving now means paying back the signing bonus of " + currency(contract.initialCash) +
                              ", also when your cash does not reach. What is out keeps the rates it was made with."});
  view.add(Button{.id = "endContract",
                  .label = fulfilled ? "End Contract" : "Terminate Contract",
                  .style = Button::Style::destructive});
  view.help =
      Help{.title = "How it is counted",
           .text =
               "A single you release counts as one song. An album counts all its songs, and as an EP below six of "
               "them or an LP from six on.\n\nA contract whose terms are met never runs out by itself."};
  return view;
}

}  // namespace backbeat
