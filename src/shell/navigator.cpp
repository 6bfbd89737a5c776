#include "shell/navigator.h"

#include <algorithm>

#include "core/money.h"
#include "core/purse.h"
#include "core/text.h"
#include "recognition/achievement_grant.h"
#include "shell/feedback.h"
#include "shell/packs.h"
#include "turn/open_report.h"

namespace backbeat {

namespace {

constexpr std::string_view reportSegue = "goToWeeklySummary";

}  // namespace

Navigator::Navigator(Game& game) : game_(game) {}
Navigator::~Navigator() = default;

void Navigator::start(const LoadReport& report) {
  if (!report.readable) {
    notice_ = "The save could not be read and is left as it is. This career is not being kept.";
  }
  tell("A part of the save was damaged and has been put aside:", report.damaged);
  if (report.lost > 0)
    tell("A part of the save is missing, and what stood there is lost:", {counted(report.lost, "row")});
  tell("Numbers that no career can hold were put right in:", report.mended);
  if (report.contractLost) {
    notice_ += notice_.empty() ? "" : " ";
    notice_ += "Your label contract is lost: you are a free artist again and keep its advance.";
  }
  openFirstScreens();
  game_.saveFile.commit();
}

/// One more sentence of the notice, when there is anything to name.
void Navigator::tell(std::string_view what, const std::vector<std::string>& keys) {
  if (keys.empty()) return;
  if (!notice_.empty()) notice_ += ' ';
  notice_ += what;
  for (const std::string& key : keys) notice_ += " " + validUtf8(key);
  notice_ += ".";
}

void Navigator::openFirstScreens() {
  firstRootKey_ = lastKey_ + 1;
  lastKey_ += tabCount;
  openRoot(homeTab);
  if (isReportOpen(game_.state)) open(modals_, *segueNamed(reportSegue), "");
  selectTab(game_.state.promptToEnterName >= 1 ? homeTab : musicTab);
}

void Navigator::startOver() {
  modals_.clear();
  for (std::vector<Open>& stack : stacks_) stack.clear();
  alerts_.clear();
  openFirstScreens();
}

void Navigator::press(std::string_view screenKey, const Action& action) {
  feedback_ = Feedback::none;
  result_ = Result::done;
  request_ = {};
  const int64_t year = game_.state.yearNumber;
  dispatch(screenKey, action);
  follow(top().screen, tellGrantedAchievements(game_));
  game_.saveFile.commit();
  if (game_.state.yearNumber > year) keepNewYear();
  game_.saveFile.rest();
}

void Navigator::takePurchase(const PurchaseAnswer& answer) {
  feedback_ = Feedback::none;
  result_ = Result::done;
  request_ = {};
  follow(top().screen, backbeat::takePurchase(game_, answer));
  const bool stored = game_.saveFile.commit() && game_.saveFile.keeping();
  if (stored && isCredited(game_.state, answer.transaction)) game_.platform.finishPurchase(answer.transaction);
}

void Navigator::keepNewYear() {
  if (game_.saveFile.keepSnapshot(SnapshotKind::newYear, game_.state, game_.clock.now())) return;
  // Where nothing can be written the game tries again with every press and says so anyway.
  if (!game_.saveFile.planSnapshot(SnapshotKind::newYear, game_.state).beyondBudget) return;
  follow(top().screen,
         news<"No Copy Kept">(
             "\nThe kept copies take all the room there is for them, so this New Year has none. Settings, "
             "Restore shows them; delete those that you can spare.",
             Feedback::none));
}

void Navigator::dispatch(std::string_view screenKey, const Action& action) {
  if (screenKey == "alert") return answerAlert(action);
  if (screenKey == "nav" && action.id == "desk") desk_ = action.value == "1";
  if (!alerts_.empty()) return;
  if (screenKey == "tabs") {
    const auto number = optionNumber(action.value, tabCount);
    if (number && modals_.empty()) selectTab(*number);
    return;
  }
  if (screenKey == "nav") {
    if (action.id == "back" && modals_.empty() && !onTabRoot()) closeTop();
    if (action.id == "endTheWeekButton" && endWeekOffered()) endTheWeek();
    return;
  }
  if (wholeNumber(screenKey) != top().key) return;
  const std::shared_ptr<Screen> screen = top().screen;
  act(screen, action);
}

void Navigator::act(const std::shared_ptr<Screen>& screen, const Action& action) {
  Outcome outcome = screen->act(action);
  result_ = outcome.result;
  follow(screen, std::move(outcome));
}

void Navigator::answerAlert(const Action& action) {
  if (alerts_.empty() || wholeNumber(action.id) != alerts_.front().key) return;
  const auto number = optionNumber(action.value, alerts_.front().alert.buttons.size());
  if (!number) return;
  const QueuedAlert answered = std::move(alerts_.front());
  alerts_.pop_front();
  const Action& chosen = answered.alert.buttons[*number].action;
  if (!chosen.id.empty()) act(answered.from, chosen);
}

void Navigator::selectTab(size_t number) {
  const bool again = number == tab_;
  tab_ = number;
  if (stacks_[tab_].empty()) {
    openRoot(tab_);
  } else if (again) {
    closeToRoot(stacks_[tab_]);
  }
  appear();
}

/// Closes every pushed screen of a tab; the root stays.
void Navigator::closeToRoot(std::vector<Open>& stack) {
  while (stack.size() > 1) stack.pop_back();
}

void Navigator::closeTop() {
  std::vector<Open>& stack = stackOfTop();
  const bool report = stack.back().segue->name == reportSegue;
  stack.pop_back();
  if (report) return selectTab(homeTab);
  appear();
}

void Navigator::endTheWeek() {
  for (std::vector<Open>& stack : stacks_) closeToRoot(stack);
  runWeekCycle(
      game_, [this] { open(modals_, *segueNamed(reportSegue), ""); }, turnObserver_);
  appear();
}

void Navigator::openRoot(size_t tab) { open(stacks_[tab], rootKey(tab), tabs()[tab].root, ""); }

void Navigator::open(std::vector<Open>& stack, const Segue& segue, std::string_view argument) {
  open(stack, ++lastKey_, segue, argument);
}

void Navigator::open(std::vector<Open>& stack, int64_t key, const Segue& segue, std::string_view argument) {
  std::shared_ptr<Screen> screen = segue.make(game_, argument);
  stack.push_back({key, &segue, screen});
  follow(screen, screen->open());
}

void Navigator::appear() {
  const std::shared_ptr<Screen> screen = top().screen;
  follow(screen, screen->appear());
}

void Navigator::follow(const std::shared_ptr<Screen>& from, Outcome outcome) {
  if (outcome.go && outcome.go->segue == startOverSegue) {
    startOver();
    outcome.go.reset();
  }
  for (Alert& alert : outcome.alerts) alerts_.push_back({++lastAlertKey_, std::move(alert), from});
  if (outcome.feedback != Feedback::none) feedback_ = outcome.feedback;
  if (!outcome.go) return;
  if (outcome.go->segue.empty()) {
    if (top().screen == from) closeTop();
    return;
  }
  if (followReserved(*outcome.go)) return;
  const Segue* segue = segueNamed(outcome.go->segue);
  if (!segue) {
    unknownSegues_.push_back(outcome.go->segue);
    return;
  }
  if (!admitted(*segue, from)) return;
  const bool modal = segue->presentation == Segue::Presentation::modal || !modals_.empty();
  open(modal ? modals_ : stacks_[tab_], *segue, outcome.go->argument);
  appear();
}

/// Asks at the door of a screen, and tells the player what it answers.
bool Navigator::admitted(const Segue& segue, const std::shared_ptr<Screen>& from) {
  if (!segue.enter) return true;
  Outcome answer = segue.enter(game_);
  const bool open = answer.done();
  if (!open) result_ = answer.result;
  follow(from, std::move(answer));
  return open;
}

/// The ways that lead to no screen.
bool Navigator::followReserved(const Go& go) {
  if (go.segue == startOverSegue) {
    startOver();
  } else if (go.segue == exportCareerSegue) {
    request_.kind = Request::Kind::exportCareer;
    game_.launch.exportedInYear = game_.state.yearNumber;
  } else if (go.segue == importCareerSegue) {
    request_.kind = Request::Kind::importCareer;
  } else if (go.segue == restoreSegue) {
    request_ = {.kind = Request::Kind::restore, .snapshot = go.argument};
  } else if (go.segue == feedbackSegue) {
    request_ = {.kind = Request::Kind::feedback, .text = feedbackFacts(game_.state)};
  } else if (go.segue == replaySegue) {
    request_.kind = Request::Kind::replay;
  } else {
    return false;
  }
  return true;
}

const Navigator::Open& Navigator::top() const { return modals_.empty() ? stacks_[tab_].back() : modals_.back(); }

std::vector<Navigator::Open>& Navigator::stackOfTop() { return modals_.empty() ? stacks_[tab_] : modals_; }

bool Navigator::onTabRoot() const { return stacks_[tab_].size() == 1; }

bool Navigator::endWeekOffered() const { return modals_.empty() && onTabRoot() && alerts_.empty(); }

/// The root of the tab, when a screen lies over it, else home; none on home itself and under a modal screen.
const Navigator::Open* Navigator::besideTop() const {
  if (!desk_ || !modals_.empty()) return nullptr;
  if (!onTabRoot()) return &stacks_[tab_].front();
  return tab_ == homeTab || stacks_[homeTab].empty() ? nullptr : &stacks_[homeTab].front();
}

bool Navigator::affordable(const Price& price) const { return backbeat::affordable(game_.state, price); }

/// Home tells first of what waits for the player.
std::string Navigator::badgeOf(TabNumber tab) const {
  const std::string waits = tab == homeTab ? needsBadge(game_) : "";
  return waits.empty() ? menuBadge(game_, tab) : waits;
}

Shown Navigator::shown() const {
  const GameState& state = game_.state;
  Shown shown;
  shown.header.cash = currency(state.totalCashAvailable);
  if (state.totalCashAvailable < 0) shown.header.cashTone = Tone::bad;
  shown.header.energy = std::to_string(state.totalEnergyAvailable) + " / " + std::to_string(state.totalEnergyMax);
  if (state.totalEnergyMax > 0) {
    shown.header.energyShare = std::clamp(
        static_cast<double>(state.totalEnergyAvailable) / static_cast<double>(state.totalEnergyMax), 0.0, 1.0);
  }
  shown.header.date = "Week " + std::to_string(state.weekNumber) + ", " + std::to_string(state.yearNumber);
  for (size_t tab = 0; tab < tabCount; ++tab) shown.badges[tab] = badgeOf(static_cast<TabNumber>(tab));
  shown.tab = tab_;
  for (const Open& open : stacks_[tab_]) shown.stack.push_back(open.key);
  for (const Open& open : modals_) shown.stack.push_back(open.key);
  shown.modal = !modals_.empty();
  shown.endWeek = modals_.empty() && onTabRoot();
  shown.appearance = state.appearance;
  shown.feedback = feedback_;
  shown.result = result_;
  if (!alerts_.empty()) shown.alert = Shown::ShownAlert{alerts_.front().key, alerts_.front().alert};
  shown.notice = notice_;
  shown.request = request_;
  shown.segue = top().segue->name;
  shown.screen = top().segue->screen;
  shown.key = top().key;
  shown.view = top().screen->view();
  if (const Open* beside = besideTop()) {
    shown.beside = OtherScreen{beside->segue->screen, beside->key, beside->screen->view()};
  }
  return shown;
}

std::optional<OtherScreen> Navigator::ahead(size_t tab) const {
  if (tab >= tabCount || !stacks_[tab].empty()) return std::nullopt;
  const Segue& root = tabs()[tab].root;
  return OtherScreen{root.screen, rootKey(tab), root.make(game_, "")->view()};
}

}  // namespace backbeat
