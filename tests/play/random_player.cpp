#include "play/random_player.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>

#include "core/career_file.h"
#include "core/snapshots.h"
#include "play/random_habits.h"

namespace backbeat {

namespace {

constexpr int64_t smallWorldsAreCheckedEvery = 4;
constexpr int64_t largeWorldsAreCheckedEvery = 20;
constexpr size_t hugeText = 100'000;

}  // namespace

RandomPlayer::RandomPlayer(uint64_t seed)
    : seed_(seed),
      random_(seed),
      career_(namedWorlds()[seed % namedWorlds().size()], [this](const std::string& line) { mark(line); }),
      absurdIn100_(weight()),
      hugeTexts_(random_.integer(0, 7) == 0),
      checkEvery_(career_.world().large ? largeWorldsAreCheckedEvery : smallWorldsAreCheckedEvery) {
  weights_.of = {random_.integer(30, 100), rarely(), rarely(), weight(), weight(), random_.integer(1, 20),
                 random_.integer(1, 6),    rarely(), rarely(), rarely()};
  if (std::getenv("BACKBEAT_CHECK_ALL")) checkEvery_ = 1;
  launch();
}

std::string RandomPlayer::whereabouts() const {
  return "seed " + std::to_string(seed_) + ", world \"" + std::string(career_.world().name) + "\", step " +
         std::to_string(stepsDone_) + ": " + lastLine_ + "\nagain: BACKBEAT_SEED=" + std::to_string(seed_) +
         " BACKBEAT_SEEDS=1 BACKBEAT_CHECK_ALL=1 backbeat_tests --gtest_filter='RandomPlayer*'\n";
}

std::string RandomPlayer::play(int64_t things) {
  std::string found = fault();
  while (found.empty() && things-- > 0) {
    found = step();
    if (found.empty()) found = fault();
  }
  return found;
}

std::string RandomPlayer::step() {
  ++stepsDone_;
  career_.pass(random_.integer(1, 3'000'000));
  const std::vector<Pressable> offered = career_.offered();
  if (!errand_.empty()) {
    pressNextOfErrand(offered);
    return career_.obeyRequest(random_.bits64());
  }
  size_t kind = 0;
  for (int64_t draw = random_.integer(1, weights_.sum()); draw > weights_.of[kind]; ++kind) draw -= weights_.of[kind];
  const auto press = [&](const char* where, const char* what, std::string value) {
    career_.play(actEvent(career_.now(), where, {what, std::move(value)}));
  };
  switch (kind) {
    case Weights::unknown: pressUnknown(); break;
    case Weights::reload: launch(); break;
    case Weights::back: press("nav", "back", ""); break;
    case Weights::tab: press("tabs", "tab", std::to_string(random_.integer(0, tabCount))); break;
    case Weights::endWeek: press("nav", "endTheWeekButton", ""); break;
    case Weights::errand: {
      const std::vector<Wish>& chosen = random_.element(errands()).wishes;
      errand_.assign(chosen.begin(), chosen.end());
      pressNextOfErrand(offered);
      break;
    }
    case Weights::carryOver: return career_.carryOver(random_.bits64());
    case Weights::damagedImport: return importDamaged();
    case Weights::goBack: return goBack();
    default: pressAny(offered); break;
  }
  return career_.obeyRequest(random_.bits64());
}

/// The next press of the errand; one that finds its way barred gets it out of the way or gives up.
void RandomPlayer::pressNextOfErrand(const std::vector<Pressable>& offered) {
  const Wish wish = errand_.front();
  const Shown shown = career_.shown();
  for (size_t tab = 0; tab < tabCount; ++tab) {
    if (tabs()[tab].label != wish.what || shown.modal || shown.alert) continue;
    if (shown.tab == tab) errand_.pop_front();
    return career_.play(actEvent(career_.now(), "tabs", {"tab", std::to_string(tab)}));
  }
  std::vector<const Pressable*> wished;
  for (const Pressable& each : offered) {
    if (each.action.verb() == wish.what || each.action.id == wish.what || each.label == wish.what) {
      wished.push_back(&each);
    }
  }
  if (!wished.empty()) {
    errand_.pop_front();
    const Pressable& chosen = *random_.element(wished);
    return career_.press(chosen, wish.value.empty() ? valueFor(chosen) : wish.value);
  }
  if (shown.alert && shown.alert->alert.title == wish.what) errand_.pop_front();
  if (!shown.alert && !shown.modal) errand_.clear();
  pressAny(offered);
}

void RandomPlayer::pressAny(const std::vector<Pressable>& offered) {
  if (offered.empty()) return career_.play(actEvent(career_.now(), "nav", {"back", ""}));
  const Pressable& chosen = wanted(offered);
  career_.press(chosen, valueFor(chosen));
}

/// Half the time whatever was pressed least so far, so that everything gets its turn.
const Pressable& RandomPlayer::wanted(const std::vector<Pressable>& offered) {
  const Pressable& any = random_.element(offered);
  if (random_.coin() == 0 || any.screenKey == "alert") return any;
  const std::string screen(career_.shown().screen);
  const auto pressed = [&](const Pressable& each) {
    return career_.coverage.actions[{screen, std::string(each.action.verb())}];
  };
  const Pressable* least = &any;
  for (const Pressable& pressable : offered) {
    if (pressed(pressable) < pressed(*least)) least = &pressable;
  }
  return *least;
}

std::string RandomPlayer::valueFor(const Pressable& pressable) {
  if (pressable.screenKey != "alert" && random_.integer(1, 100) <= absurdIn100_) return absurdValue();
  switch (pressable.takes) {
    case Pressable::Takes::text: return random_.element(sensibleTexts);
    case Pressable::Takes::photo: return random_.element(photos);
    case Pressable::Takes::option:
      return std::to_string(random_.integer(0, std::max<int64_t>(pressable.options, 1) - 1));
    case Pressable::Takes::nothing:
    case Pressable::Takes::flag:
    case Pressable::Takes::row: break;
  }
  return pressable.action.value;
}

std::string RandomPlayer::absurdValue() {
  if (hugeTexts_ && random_.integer(0, 9) == 0) return std::string(hugeText, 'x');
  return random_.element(absurdTexts);
}

/// Presses something that is not there: another screen's button, a record that does not exist, nonsense.
void RandomPlayer::pressUnknown() {
  const auto& known = career_.coverage.actions;
  std::string id = absurdValue();
  if (!known.empty() && random_.coin() == 1) {
    id = std::next(known.begin(), random_.integer(0, static_cast<int64_t>(known.size()) - 1))->first.second;
    if (random_.coin() == 1) id += ":" + absurdValue();
  }
  const std::string shown = std::to_string(career_.shown().key);
  const std::array<std::string, 5> keys = {shown, shown, "alert", "tabs", absurdValue()};
  const std::string& key = random_.element(keys);  // drawn before the value, whatever the compiler evaluates first
  career_.play(actEvent(career_.now(), key, {id, absurdValue()}));
}

void RandomPlayer::mark(const std::string& line) {
  lastLine_ = line.substr(0, 300);
  if (beforeStep) beforeStep(whereabouts());
}

/// A damaged file is refused with a reason, or was read whole.
std::string RandomPlayer::importDamaged() {
  mark("reads a damaged career file");
  Bytes file = exportCareer(career_.state());
  const auto place = [&] { return static_cast<size_t>(random_.integer(0, static_cast<int64_t>(file.size()) - 1)); };
  if (random_.coin() == 1) file.resize(place());
  for (int64_t flips = file.empty() ? 0 : random_.integer(1, 3); flips > 0; --flips) {
    file[place()] ^= static_cast<char>(1 << random_.integer(0, 7));
  }
  const ImportedCareer career = importCareer(file);
  if (career.state.has_value() != career.problem.empty()) return "a damaged file is neither refused nor read";
  return {};
}

std::string RandomPlayer::goBack() {
  const std::vector<Snapshot> kept = snapshotsOf(career_.store());
  return kept.empty() ? "" : career_.goBackTo(random_.element(kept).name, random_.bits64());
}

std::string RandomPlayer::fault() { return career_.fault(stepsDone_ % checkEvery_ == 0 ? Care::full : Care::little); }

}  // namespace backbeat
