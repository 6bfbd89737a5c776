#include "play/random_player.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/career_file.h"
#include "core/snapshots.h"
#include "play/glass.h"
#include "play/random_habits.h"

namespace backbeat {

namespace {

constexpr int64_t smallWorldsAreCheckedEvery = 4;
constexpr int64_t largeWorldsAreCheckedEvery = 20;
constexpr size_t hugeText = 100'000;

}  // namespace

void Coverage::add(const Coverage& other) {
  for (const auto& [segue, count] : other.segues) segues[segue] += count;
  for (const auto& [action, count] : other.actions) actions[action] += count;
  alerts.insert(other.alerts.begin(), other.alerts.end());
  unknownSegues.insert(other.unknownSegues.begin(), other.unknownSegues.end());
}

std::vector<std::string> Coverage::neverPressed() const {
  std::vector<std::string> names;
  for (const auto& [action, count] : actions) {
    if (count == 0) names.push_back(action.first + " " + action.second);
  }
  return names;
}

RandomPlayer::RandomPlayer(uint64_t seed)
    : seed_(seed),
      random_(seed),
      world_(namedWorlds()[seed % namedWorlds().size()]),
      career_(store_, platform_),
      absurdIn100_(weight()),
      hugeTexts_(random_.integer(0, 7) == 0),
      checkEvery_(world_.large ? largeWorldsAreCheckedEvery : smallWorldsAreCheckedEvery) {
  weights_.of = {random_.integer(30, 100), rarely(), rarely(), weight(), weight(), random_.integer(1, 20),
                 random_.integer(1, 6),    rarely(), rarely(), rarely()};
  if (std::getenv("BACKBEAT_CHECK_ALL")) checkEvery_ = 1;
  settleInto(store_, world_);
  launch();
}

std::string RandomPlayer::whereabouts() const {
  return "seed " + std::to_string(seed_) + ", world \"" + world_.name + "\", step " + std::to_string(stepsDone_) +
         ": " + lastLine_ + "\nagain: BACKBEAT_SEED=" + std::to_string(seed_) +
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
  now_ += random_.integer(1, 3'000'000);
  endingWeek_ = false;
  const Shown shown = career_.session().shown();
  const std::vector<Pressable> offered = printScreen(career_.session().navigator(), shown, false).pressables;
  note(shown, offered);
  if (!errand_.empty()) {
    play(nextOfErrand(shown, offered));
    return obeyRequest();
  }
  size_t kind = 0;
  for (int64_t draw = random_.integer(1, weights_.sum()); draw > weights_.of[kind]; ++kind) draw -= weights_.of[kind];
  switch (kind) {
    case Weights::unknown: play(unknownPress()); break;
    case Weights::reload: launch(); break;
    case Weights::back: play(actEvent(now_, "nav", {"back", ""})); break;
    case Weights::tab: play(actEvent(now_, "tabs", {"tab", std::to_string(random_.integer(0, tabCount))})); break;
    case Weights::endWeek: play(actEvent(now_, "nav", {"endTheWeekButton", ""})); break;
    case Weights::errand: {
      const std::vector<Wish>& chosen = random_.element(errands);
      errand_.assign(chosen.begin(), chosen.end());
      play(nextOfErrand(shown, offered));
      break;
    }
    case Weights::carryOver: return carryOver();
    case Weights::damagedImport: return importDamaged();
    case Weights::goBack: return goBack();
    default: play(anyPress(offered)); break;
  }
  return obeyRequest();
}

/// The next press of the errand; one that finds its way barred gets it out of the way or gives up.
TraceEvent RandomPlayer::nextOfErrand(const Shown& shown, const std::vector<Pressable>& offered) {
  const Wish wish = errand_.front();
  for (size_t tab = 0; tab < tabCount; ++tab) {
    if (tabs()[tab].label != wish.what || shown.modal || shown.alert) continue;
    if (shown.tab == tab) errand_.pop_front();
    return actEvent(now_, "tabs", {"tab", std::to_string(tab)});
  }
  std::vector<const Pressable*> wished;
  for (const Pressable& pressable : offered) {
    if (pressable.action.verb() == wish.what || pressable.label == wish.what) wished.push_back(&pressable);
  }
  if (!wished.empty()) {
    errand_.pop_front();
    TraceEvent press = pressOf(*random_.element(wished));
    if (!wish.value.empty()) press.action.value = wish.value;
    return press;
  }
  if (!shown.alert && !shown.modal) errand_.clear();
  return anyPress(offered);
}

TraceEvent RandomPlayer::anyPress(const std::vector<Pressable>& offered) {
  if (offered.empty()) return actEvent(now_, "nav", {"back", ""});
  return pressOf(wanted(offered));
}

TraceEvent RandomPlayer::pressOf(const Pressable& pressable) {
  const std::string screen(career_.session().shown().screen);
  if (pressable.screenKey != "alert") ++coverage_.actions[{screen, std::string(pressable.action.verb())}];
  return actEvent(now_, pressable.screenKey, {pressable.action.id, valueFor(pressable)});
}

/// Half the time whatever was pressed least so far, so that everything gets its turn.
const Pressable& RandomPlayer::wanted(const std::vector<Pressable>& offered) {
  const Pressable& any = random_.element(offered);
  if (random_.coin() == 0 || any.screenKey == "alert") return any;
  const std::string screen(career_.session().shown().screen);
  const auto pressed = [&](const Pressable& p) { return coverage_.actions[{screen, std::string(p.action.verb())}]; };
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

/// A press of something that is not there: another screen's button, a record that does not exist, nonsense.
TraceEvent RandomPlayer::unknownPress() {
  const Shown shown = career_.session().shown();
  const std::vector<Pressable> offered = printScreen(career_.session().navigator(), shown, false).pressables;
  std::string id = absurdValue();
  if (!coverage_.actions.empty() && random_.coin() == 1) {
    auto known = coverage_.actions.begin();
    std::advance(known, random_.integer(0, static_cast<int64_t>(coverage_.actions.size()) - 1));
    id = known->first.second;
    if (random_.coin() == 1) id += ":" + absurdValue();
  }
  const std::array<std::string, 5> keys = {std::to_string(shown.key), std::to_string(shown.key), "alert", "tabs",
                                           absurdValue()};
  const std::string& key = random_.element(keys);  // drawn before the value, whatever the compiler evaluates first
  return actEvent(now_, key, {id, absurdValue()});
}

void RandomPlayer::note(const Shown& shown, const std::vector<Pressable>& offered) {
  const std::string screen(shown.screen);
  ++coverage_.segues[std::string(shown.segue)];
  if (shown.alert) coverage_.alerts.insert(shown.alert->alert.from.name());
  for (const Pressable& pressable : offered) {
    if (pressable.screenKey != "alert")
      coverage_.actions.try_emplace({screen, std::string(pressable.action.verb())}, 0);
  }
}

void RandomPlayer::mark(const std::string& line) {
  lastLine_ = line.substr(0, 300);
  if (beforeStep) beforeStep(whereabouts());
}

void RandomPlayer::play(const TraceEvent& event) {
  const GameState& state = career_.session().game().state;
  week_ = {state.weekNumberForTracking, state.totalCashAvailable, state.underContract};
  endingWeek_ = event.action.id == "endTheWeekButton";
  mark(traceLine(event));
  oracle_.before(career_.session().shown(), state);
  career_.play(event);
  pressFault_ = oracle_.after(event.screenKey, event.action, career_.session().shown(), state);
  const auto& unknown = career_.session().navigator().unknownSegues();
  coverage_.unknownSegues.insert(unknown.begin(), unknown.end());
}

void RandomPlayer::launch() {
  const TraceEvent event = launchEvent(now_, random_.bits64());
  mark(traceLine(event));
  career_.play(event);
  justLaunched_ = true;
}

/// What the program around the game does after a press.
std::string RandomPlayer::obeyRequest() {
  const Request request = career_.session().shown().request;
  switch (request.kind) {
    case Request::Kind::exportCareer:
    case Request::Kind::importCareer: return carryOver();
    case Request::Kind::restore: return goBackTo(request.snapshot);
    case Request::Kind::none:
    case Request::Kind::newYear: break;
  }
  return {};
}

/// The career leaves as a file and comes back from it, as on another device.
std::string RandomPlayer::carryOver() {
  mark("carries the career over in a file");
  const GameState& state = career_.session().game().state;
  const Bytes file = exportCareer(state);
  ImportedCareer career = importCareer(file);
  if (!career.state) return "its own export is refused: " + career.problem;
  if (!career.missing.empty()) return "its own export lacks " + career.missing.front();
  if (exportCareer(*career.state) != file) return "a career that was carried over is exported otherwise";
  if (!keepSnapshot(store_, SnapshotKind::import, state)) return "no copy was kept before the import";
  if (!store_.replaceAll(rowsOf(*career.state))) return "the import was not stored";
  launch();
  return {};
}

/// A damaged file is refused with a reason, or was read whole.
std::string RandomPlayer::importDamaged() {
  mark("reads a damaged career file");
  Bytes file = exportCareer(career_.session().game().state);
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
  const std::vector<Snapshot> kept = snapshotsOf(store_);
  return kept.empty() ? "" : goBackTo(random_.element(kept).name);
}

std::string RandomPlayer::goBackTo(const std::string& snapshot) {
  mark("goes back to " + snapshot);
  if (!store_.restoreSnapshot(snapshot)) return "a copy that is offered could not be restored";
  launch();
  return {};
}

std::string RandomPlayer::fault() {
  if (!pressFault_.empty()) return std::exchange(pressFault_, "");
  const Session& session = career_.session();
  const bool weekEnded = endingWeek_ && session.game().state.weekNumberForTracking != week_.tracking;
  const bool due = stepsDone_ % checkEvery_ == 0 || weekEnded || std::exchange(justLaunched_, false);
  const bool newHere = seen_.insert(session.shown().segue).second;
  if (!session.loadReport().damagedLists.empty()) return "a list of its own save was damaged at a reload";
  if (session.game().saveFile.failing()) return "the store took a write and the save file does not know";
  if (due) {
    const std::vector<std::string> unsaved = differencesFromStore(session.game().state, store_);
    if (!unsaved.empty()) return "not saved: " + unsaved.front();
    if (std::string found = historyFault(session.game().state); !found.empty()) return found;
  }
  if (due || newHere) {
    if (std::string found = glassFault(session, [&] { return session.shown(); }); !found.empty()) return found;
  }
  return weekEnded ? weekFault(session.game().state, week_) : "";
}

}  // namespace backbeat
