#include "play/press_oracle.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/purse.h"
#include "core/save_file.h"

namespace backbeat {

namespace {

/// Where a press is meant to differ from what it shows.
enum class Meant {
  askedThere,   ///< takes nothing: the main button of the screen that it leaves on the glass asks for the same
  paidLater,    ///< takes nothing: it is part of another price
  saysAnother,  ///< the words say one figure and the charge is another
  mayTake,      ///< may take energy or cash that no price names
  energyFirst,  ///< takes its energy before it asks; the answer takes the dollars
};

struct Difference {
  std::string_view press;  ///< the screen and the part of the action before its colon, or a label
  Meant meant;
  std::string_view why;
};
constexpr std::array<Difference, 30> differences = {{
    {"MusicViewController createSongButton", Meant::askedThere, "the way to where songs are made"},
    {"SongDetailViewController announceButton", Meant::askedThere, "the way to the composer"},
    {"TwitterProfileViewController goToCreateTwitterMessage", Meant::askedThere, "the way to the composer"},
    {"SetAlbumMarketingViewController plan", Meant::askedThere, "picks the plan that the button then sets"},
    {"FeaturingViewController add", Meant::paidLater, "a guest is paid with the song"},
    {"TourViewController venue", Meant::saysAnother, "the road takes it, week by week"},
    {"CameoViewController add", Meant::paidLater, "a face is paid with the video"},
    {"Sell Your Beats", Meant::saysAnother, "says 30 and takes 20"},
    {"Venture Raise", Meant::saysAnother, "says 50 and takes nothing"},
    {"Annual Checkup", Meant::saysAnother, "asks by the skill of the press, not of the draw"},
    {"Go Fund You", Meant::saysAnother, "all of a week's appeals ask what the latest drew"},
    {"Family Request", Meant::saysAnother, "the same"},
    {"Feature Request", Meant::saysAnother, "comes to what the latest draw says, a verse or a fan"},
    {"Fan Meeting", Meant::saysAnother, "the same"},
    {"CreateLabelViewController createLabelButton", Meant::saysAnother, "says ten energy and takes none"},
    {"DemoAndOfferViewController offerButton", Meant::mayTake, "pays the bonus when the artist accepts"},
    {"DepartmentViewController confirmFire", Meant::mayTake, "the question names the severance"},
    {"Drop Shipping", Meant::mayTake, "loses as often as it wins"},
    {"SignedContractViewController confirmEndContract", Meant::mayTake, "the question names the advance"},
    {"AdminMerchViewController restockButton", Meant::energyFirst, "who asks the maker has had the trouble"},
    {"AdminMerchViewController retireButton", Meant::energyFirst, "the same, for who asks for an offer"},
    {"FxyMatchListViewController match", Meant::mayTake, "who is caught may be divorced"},
    {"RelationshipHomeViewController qualityTime", Meant::mayTake, "what a date costs is drawn"},
    {"RelationshipHomeViewController askForMoney", Meant::mayTake, "who asks too much may be divorced"},
    {"RelationshipHomeViewController breakupConfirmed", Meant::mayTake, "the question names the settlement"},
    {"RelationshipHomeViewController signPrenup", Meant::mayTake, "the wedding costs, and the step to it does not"},
    {"RelationshipHomeViewController noPrenup", Meant::mayTake, "the same"},
    {"AdoptionDetailViewController adoptButton", Meant::mayTake, "pays when the adoption is approved"},
    {"TakeOverDetailViewController takeOverConfirmed", Meant::mayTake, "another life begins"},
    {"SettingsViewController restartConfirmed", Meant::mayTake, "another life begins"},
}};

bool isMeant(Meant meant, std::string_view press) {
  return std::any_of(differences.begin(), differences.end(),
                     [&](const Difference& each) { return each.meant == meant && each.press == press; });
}

struct Offer {
  std::string label;
  std::optional<Price> price;
};

/// What the part of a view offers under that id, be it the part itself or something in it.
template <class Part>
std::optional<Offer> offerOf(const Part& part, std::string_view id) {
  std::optional<Offer> found;
  const auto lookInto = [&](const auto& parts) {
    for (const auto& each : parts) {
      if (!found) found = offerOf(each, id);
    }
  };
  if constexpr (requires { part.id; }) {
    if (part.id == id) {
      found.emplace();
      if constexpr (requires { part.title; }) found->label = part.title;
      if constexpr (requires { part.label; }) found->label = part.label;
      if constexpr (requires { part.price.has_value(); }) found->price = part.price;
    }
  }
  if constexpr (requires { part.items; }) lookInto(part.items);
  if constexpr (requires { part.buttons; }) lookInto(part.buttons);
  if constexpr (requires { part.choices; }) lookInto(part.choices);
  if constexpr (requires { part.actions; }) lookInto(part.actions);
  return found;
}

std::optional<Offer> offerOf(const View& view, std::string_view id) {
  for (const std::optional<Button>& button : {view.mainAction, view.aside}) {
    if (button && button->id == id) return Offer{button->label, button->price};
  }
  std::optional<Offer> found;
  for (const Block& block : view.blocks) {
    if (!found) found = std::visit([&](const auto& part) { return offerOf(part, id); }, block);
  }
  return found;
}

/// Whether the main button asks for what was shown on the way to it; dollars may come on top of energy alone.
bool asksFor(const std::optional<Button>& button, const Price& shown) {
  if (!button || !button->price) return false;
  return button->price->energy == shown.energy && (shown.dollars == 0 || button->price->dollars == shown.dollars);
}

std::string text(const Price& price) {
  return std::to_string(price.energy) + " energy and " + std::to_string(price.dollars) + " dollars";
}

}  // namespace

void PressOracle::before(const Shown& shown, const GameState& state) {
  shown_ = shown;
  energy_ = state.totalEnergyAvailable;
  cash_ = state.totalCashAvailable;
  hash_ = stateHash(state);
}

std::optional<PressOracle::Pressed> PressOracle::pressed(std::string_view screenKey, const Action& action) const {
  if (shown_.alert) {
    const std::vector<AlertButton>& buttons = shown_.alert->alert.buttons;
    const auto number = optionNumber(action.value, buttons.size());
    if (screenKey != "alert" || wholeNumber(action.id) != shown_.alert->key || !number) return std::nullopt;
    const AlertButton& answer = buttons[*number];
    const bool sends = !answer.action.id.empty();
    return Pressed{answer.action.verb(), answer.label, sends ? asked_ : std::nullopt};
  }
  if (wholeNumber(screenKey) != shown_.key) return std::nullopt;
  const std::optional<Offer> offer = offerOf(shown_.view, action.id);
  if (!offer) return std::nullopt;
  return Pressed{action.verb(), offer->label, offer->price};
}

std::string PressOracle::after(std::string_view screenKey, const Action& action, const Shown& now,
                               const GameState& state) {
  const std::optional<Pressed> press = pressed(screenKey, action);
  if (press) asked_ = now.result == Result::asked ? press->price : std::nullopt;
  if (energy_ >= 0 && state.totalEnergyAvailable < 0) return "it spent energy that was not there";
  if (press && asked_ && isMeant(Meant::energyFirst, nameOf(*press))) {
    const Price energy = {.energy = std::exchange(asked_->energy, 0)};
    return priceFault({press->verb, press->label, energy}, now, state);
  }
  if (now.result != Result::done) return stateHash(state) == hash_ ? "" : "it was refused and changed the state";
  return press ? priceFault(*press, now, state) : "";
}

std::string PressOracle::nameOf(const Pressed& press) const {
  return std::string(shown_.screen) + " " + std::string(press.verb);
}

std::string PressOracle::priceFault(const Pressed& press, const Shown& now, const GameState& state) const {
  const std::string name = nameOf(press);
  const auto meant = [&](Meant what) { return isMeant(what, name) || isMeant(what, press.label); };
  const Price price = press.price.value_or(Price{});
  Charge due = price.charged();
  if (due != Charge{price.energy, price.dollars} && !meant(Meant::saysAnother)) {
    return press.label + " says " + text(price) + " and would take something else";
  }
  if (meant(Meant::askedThere)) {
    if (press.price && !asksFor(now.view.mainAction, price))
      return name + " leads to another price than " + text(price);
    due = {};
  }
  if (meant(Meant::paidLater)) due = {};
  const int64_t energy = energy_ - due.energy;
  const double cash = cash_ - due.dollars;
  const auto isRight = [&](auto asked, auto expected, auto left) {
    return asked == 0 ? left >= expected || meant(Meant::mayTake) : left == expected;
  };
  if (!isRight(due.energy, energy, state.totalEnergyAvailable) ||
      !isRight(due.dollars, cash, state.totalCashAvailable)) {
    return name + " shows " + text(price) + "; of " + text({energy_, cash_}) + " it left " +
           text({state.totalEnergyAvailable, state.totalCashAvailable});
  }
  if ((due.energy > 0 && energy < 0) || (due.dollars > 0 && cash < 0)) return name + " took what was not there";
  return "";
}

}  // namespace backbeat
