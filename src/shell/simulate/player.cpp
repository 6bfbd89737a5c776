#include "shell/simulate/player.h"

#include <algorithm>
#include <utility>

#include "core/view_find.h"

namespace backbeat {

namespace {

constexpr size_t songsOfSet = 6;
constexpr int64_t newYear2023 = 1'672'660'800'000;  // unix milliseconds
constexpr int64_t betweenPresses = 7'000;
constexpr int mostReportPresses = 20;
constexpr int mostQuestions = 100;

/// What a press sends when nothing more is told: a toggle turns.
std::string plainValue(const View& view, const std::string& id) {
  const Toggle toggle = blockWithId<Toggle>(view, id);
  if (toggle.id.empty()) return "";
  return toggle.on ? "0" : "1";
}

}  // namespace

Player::Player(uint64_t seed, std::vector<std::string>& problems)
    : Player(keepsNothing_, newYear2023, seed, problems) {}

Player::Player(Store& store, int64_t unixMilliseconds, uint64_t seed, std::vector<std::string>& problems)
    : now_(unixMilliseconds),
      career_(store, platform_, [this](const std::string& line) { lines_.push_back(line); }),
      problems_(problems) {
  career_.play(launchEvent(now_, seed));
}

const Shown& Player::seen() {
  if (!seen_) seen_ = career_.session().shown();
  return *seen_;
}

void Player::press(const std::string& id, const std::optional<std::string>& value) {
  if (!tryPress(id, value)) problems_.push_back("there is no " + id + " on " + std::string(seen().screen));
}

bool Player::tryPress(const std::string& id, const std::optional<std::string>& value) {
  if (seen().alert || !isPressable(view(), id)) return false;
  act(std::to_string(seen().key), {id, value ? *value : plainValue(view(), id)});
  return true;
}

void Player::tab(TabNumber number) {
  act("tabs", {"tab", std::to_string(number)});
  backToRoot();
}

void Player::backToRoot() {
  for (size_t screens = seen().stack.size(); screens > 1; --screens) back();
}

void Player::answer(size_t button) {
  const auto asked = seen().alert;
  if (!asked) return;
  const size_t chosen = button < asked->alert.buttons.size() ? button : 0;
  act("alert", {std::to_string(asked->key), std::to_string(chosen)});
}

void Player::settle() {
  for (int questions = 0; seen().alert; ++questions) {
    if (questions > mostQuestions) return problems_.push_back("asked for ever: " + seen().alert->alert.title);
    answer(0);
  }
}

void Player::playFestival() {
  if (seen().screen != "FestivalInviteViewController") return;
  press("goToChooseSetList");
  std::vector<std::string> songs;  // the best come first
  for (const Rows& rows : blocksOf<Rows>(view())) {
    for (const Row& song : rows.items) songs.push_back(song.id);
  }
  for (size_t i = 0; i < std::min(songs.size(), songsOfSet); ++i) press(songs[i]);
  press("closeButton");
  press("acceptFestival");
}

bool Player::isPitch(std::string_view chance) {
  for (const Card& card : blocksOf<Card>(view())) {
    for (const Button& button : card.buttons) {
      if (button.id == chance && button.label == "Pitch Deck") return true;
    }
  }
  return false;
}

void Player::answerFounders() {
  if (seen().screen != "InvestmentOptionViewController") return;
  const double budget = state().totalCashAvailable * shareForARound_;
  for (const char* part : {"0", "1"}) {
    tryPress("stake", part);
    const auto price = view().mainAction->price;
    if (price && price->dollars <= budget && tryPress("investButton")) return settle();
  }
  press("passButton");
  settle();
}

void Player::endTheWeek(bool takesChances) {
  backToRoot();
  const int64_t week = state().weekNumberForTracking;
  act("nav", {"endTheWeekButton", ""});
  settle();
  if (attendsAwards_ && tryPress("awardButton")) {
    tryPress("allEnvelopes");  // there are none in the night of a year without nominations
    press("doneButton");
  }
  for (const char* chance : {"eventButton1", "eventButton2", "eventButton3"}) {
    if (!takesChances || (shareForARound_ <= 0 && isPitch(chance)) || !tryPress(chance)) continue;
    settle();
    answerFounders();
    if (tryPress("acceptButton")) settle();  // of an offer that the chance led to
    playFestival();
  }
  for (int presses = 0; seen().modal; ++presses) {
    if (presses > mostReportPresses) return problems_.push_back("stuck on " + std::string(seen().screen));
    press("closeButton");
    settle();
  }
  if (state().weekNumberForTracking == week)
    problems_.push_back("the week does not end on " + std::string(seen().screen));
}

void Player::act(const std::string& screenKey, const Action& action) {
  now_ += betweenPresses;
  seen_.reset();
  career_.play(actEvent(now_, screenKey, action));
}

}  // namespace backbeat
