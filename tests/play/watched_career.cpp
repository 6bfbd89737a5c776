#include "play/watched_career.h"

#include <map>
#include <utility>

#include "core/career_check.h"
#include "core/career_file.h"
#include "core/snapshots.h"
#include "play/glass.h"
#include "shell/packs.h"

namespace backbeat {

namespace {

struct Settled {
  MemoryStore store;
  int64_t time = 0;
};

/// Settled once, since many careers begin there.
const Settled& settled(const NamedWorld& world) {
  static std::map<std::string_view, Settled> known;
  const auto [found, isNew] = known.try_emplace(world.name);
  if (isNew) {
    settleInto(found->second.store, world);
    found->second.time = timeIn(found->second.store);
  }
  return found->second;
}

}  // namespace

WatchedCareer::WatchedCareer(const NamedWorld& world, std::function<void(const std::string& line)> onStep)
    : world_(world),
      onStep_(std::move(onStep)),
      store_(settled(world).store),
      career_(store_, shop_, onStep_),
      now_(settled(world).time) {}

void WatchedCareer::launch(uint64_t seed) {
  career_.play(launchEvent(now_, seed));
  segueOf_.clear();
  coverage.noteWay(shown(), segueOf_);
  justLaunched_ = true;
  endingWeek_ = false;
  hear(std::vector(shop_.unfinished()));
}

/// A purchase brings its pack once, and nothing else the shop says changes the purse.
void WatchedCareer::hear(const std::vector<PurchaseAnswer>& answers) {
  for (const PurchaseAnswer& answer : answers) {
    const bool counts = answer.result == PurchaseAnswer::Result::done && !isCredited(state(), answer.transaction) &&
                        !(answer.free && takenThisWeek(state(), answer.product));
    const Charge gift = counts ? packNamed(answer.product)->gift : Charge{};
    const int64_t energy = state().totalEnergyAvailable + gift.energy;
    const double cash = state().totalCashAvailable + gift.dollars;
    career_.play(purchaseEvent(now_, answer));
    if (state().totalEnergyAvailable != energy || state().totalCashAvailable != cash) {
      pressFault_ = "the shop's answer about " + answer.product + " did not bring what it holds";
    }
  }
}

void WatchedCareer::play(const TraceEvent& event) {
  week_ = weekBefore(state());
  endingWeek_ = event.action.id == "endTheWeekButton";
  oracle_.before(shown(), state());
  career_.play(event);
  const Shown now = shown();
  pressFault_ = oracle_.after(event.screenKey, event.action, now, state());
  coverage.noteWay(now, segueOf_);
  const auto& unknown = session().navigator().unknownSegues();
  coverage.unknownSegues.insert(unknown.begin(), unknown.end());
}

void WatchedCareer::press(const Pressable& pressable, const std::string& value) {
  coverage.press(shown(), pressable);
  play(actEvent(now_, pressable.screenKey, {pressable.action.id, value}));
}

std::vector<Pressable> WatchedCareer::offered() {
  const Shown now = shown();
  std::vector<Pressable> pressables = printScreen(session().navigator(), now, false).pressables;
  coverage.see(now, pressables);
  return pressables;
}

std::string WatchedCareer::obeyRequest(uint64_t seed) {
  hear(shop_.takeAnswers());
  const Request request = shown().request;
  switch (request.kind) {
    case Request::Kind::exportCareer:
    case Request::Kind::importCareer: return carryOver(seed);
    case Request::Kind::restore: return goBackTo(request.snapshot, seed);
    case Request::Kind::purchase:
    case Request::Kind::review:
    case Request::Kind::feedback:
    case Request::Kind::replay:
    case Request::Kind::none: break;
  }
  return {};
}

std::string WatchedCareer::carryOver(uint64_t seed) {
  if (onStep_) onStep_("carries the career over in a file");
  const Bytes file = exportCareer(state());
  ImportedCareer career = importCareer(file);
  if (!career.state) return "its own export is refused: " + career.problem;
  if (!career.missing.empty()) return "its own export lacks " + career.missing.front();
  if (exportCareer(*career.state) != file) return "a career that was carried over is exported otherwise";
  if (!keepSnapshot(store_, SnapshotKind::import, state(), Date{static_cast<double>(now_) / 1000}))
    return "no copy was kept before the import";
  if (!store_.replaceAll(rowsOf(*career.state))) return "the import was not stored";
  launch(seed);
  return {};
}

std::string WatchedCareer::goBackTo(const std::string& snapshot, uint64_t seed) {
  if (onStep_) onStep_("goes back to " + snapshot);
  if (!store_.restoreSnapshot(snapshot)) return "a copy that is offered could not be restored";
  launch(seed);
  return {};
}

std::string WatchedCareer::fault(Care care) {
  if (!pressFault_.empty()) return std::exchange(pressFault_, "");
  const bool weekEnded = endingWeek_ && state().weekNumberForTracking != week_.tracking;
  const bool due = care == Care::full || weekEnded || std::exchange(justLaunched_, false);
  const bool newHere = seen_.insert(shown().segue).second;
  const LoadReport& report = session().loadReport();
  if (!report.damaged.empty() || report.lost > 0) return "its own save was damaged at a reload";
  if (session().game().saveFile.failing()) return "the store took a write and the save file does not know";
  if (due) {
    const std::vector<std::string> unsaved = differencesFromStore(state(), store_);
    if (!unsaved.empty()) return "not saved: " + unsaved.front();
    if (std::string found = historyFault(state()); !found.empty()) return found;
    if (std::string found = sleepFault(state()); !found.empty()) return found;
    if (std::string found = labelSumsFault(session().game()); !found.empty()) return found;
  }
  if (due || newHere) {
    if (std::string found = glassFault(session(), [&] { return shown(); }); !found.empty()) return found;
  }
  if (!weekEnded) return "";
  const std::vector<std::string> unbearable = unbearableValues(state(), 1);
  return unbearable.empty() ? weekFault(state(), week_) : "a rule wrote what no file may hold: " + unbearable.front();
}

}  // namespace backbeat
