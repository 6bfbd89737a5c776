#include "play/crawl.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <optional>

#include "play/random_habits.h"
#include "play/watched_career.h"
#include "shell/shown_json.h"

namespace backbeat {

namespace {

constexpr uint64_t seed = 7;
/// Of one action with many arguments, such as the songs of a list, so many are pressed on a place, the first and the
/// last among them.
constexpr size_t mostOfOneAction = 4;
constexpr size_t mostPlaces = 400;
/// From then on a kind of place is known: in further worlds each action is pressed once there, to see where it leads.
constexpr int worldsToKnow = 2;

/// How many worlds have shown a kind of place.
using KnownPlaces = std::map<std::string, int>;

/// The values that a press of it may carry.
std::vector<std::string> valuesFor(const Pressable& pressable) {
  if (pressable.takes == Pressable::Takes::text) return {"Something Else"};
  if (pressable.takes == Pressable::Takes::photo) return {photos.front()};
  if (pressable.takes != Pressable::Takes::option) return {pressable.action.value};
  std::vector<std::string> options;
  for (int64_t option = 0; option < pressable.options; ++option) options.push_back(std::to_string(option));
  return options;
}

/// At most `count` of the items, evenly spread from the first to the last.
template <class T>
std::vector<T> spread(const std::vector<T>& items, size_t count) {
  if (items.size() <= count) return items;
  if (count == 1) return {items.back()};
  std::vector<T> chosen;
  for (size_t i = 0; i < count; ++i) chosen.push_back(items[i * (items.size() - 1) / (count - 1)]);
  return chosen;
}

class Crawler {
 public:
  Crawler(const NamedWorld& world, KnownPlaces& known) : world_(world), known_(known) {}

  Crawl crawl() {
    arrive({});
    ways_.push_back({});
    kinds_.insert(kindOfPlace());
    for (; !ways_.empty(); ways_.pop_front()) visit(ways_.front());
    for (const std::string& kind : kinds_) ++known_[kind];
    if (kinds_.size() >= mostPlaces) found_.faults.push_back(where() + "there is no end of places");
    return std::move(found_);
  }

 private:
  using Way = std::vector<TraceEvent>;

  /// Begins anew and makes the presses of the way.
  void arrive(const Way& way) {
    if (career_) found_.coverage.add(career_->coverage);
    career_ = std::make_unique<WatchedCareer>(world_);
    career_->launch(seed);
    way_.clear();
    for (const TraceEvent& event : way) {
      career_->play(event);
      finishPress(event);
    }
  }

  void finishPress(const TraceEvent& event) {
    way_.push_back(event);
    constexpr int64_t betweenPresses = 7'000;
    career_->pass(betweenPresses);
    asksOutside_ = career_->shown().request.kind != Request::Kind::none;
    if (const std::string problem = career_->obeyRequest(seed); !problem.empty()) note(problem);
  }

  void note(const std::string& problem) { found_.faults.push_back(where() + problem); }

  std::string where() const {
    std::string text = "in \"" + std::string(world_.name) + "\" after";
    for (const TraceEvent& event : way_) {
      text += " " + event.action.id + (event.action.value.empty() ? "" : "=" + event.action.value);
    }
    return text + ": ";
  }

  std::string kindOfPlace() {
    const Shown shown = career_->shown();
    if (shown.alert) return std::string(shown.screen) + " under " + shown.alert->alert.title;
    std::set<std::string> verbs;
    for (const Pressable& each : career_->offered()) verbs.insert(std::string(each.action.verb()));
    std::string kind(shown.segue);
    for (const std::string& verb : verbs) kind += " " + verb;
    return kind;
  }

  /// What can be pressed on the place, one event each.
  std::vector<std::pair<Pressable, std::string>> pressesHere() {
    std::map<std::string, std::vector<Pressable>> byVerb;
    std::vector<std::string> order;
    for (const Pressable& each : career_->offered()) {
      const std::string verb = each.screenKey == "alert" ? each.label : std::string(each.action.verb());
      if (!byVerb.contains(verb)) order.push_back(verb);
      byVerb[verb].push_back(each);
    }
    const auto seen = known_.find(kindOfPlace());
    const bool isKnown = seen != known_.end() && seen->second >= worldsToKnow;
    const size_t most = isKnown ? 1 : mostOfOneAction;
    std::vector<std::pair<Pressable, std::string>> presses;
    for (const std::string& verb : order) {
      for (const Pressable& each : spread(byVerb[verb], most)) {
        for (const std::string& value : spread(valuesFor(each), most)) presses.emplace_back(each, value);
      }
    }
    const Shown shown = career_->shown();
    if (shown.alert || shown.modal || (isKnown && !way_.empty())) return presses;
    const auto add = [&](const char* where, const char* id, std::string value) {
      Pressable pressable;
      pressable.screenKey = where;
      pressable.action.id = id;
      presses.emplace_back(std::move(pressable), std::move(value));
    };
    for (size_t tab = 0; tab < tabCount; ++tab) add("tabs", "tab", std::to_string(tab));
    if (shown.endWeek) add("nav", "endTheWeekButton", "");
    return presses;
  }

  struct Looks {
    std::string glass;
    uint64_t state;
    friend bool operator==(const Looks&, const Looks&) = default;
  };
  Looks looks() { return {shownAsJson(career_->session().navigator(), career_->shown()), stateHash(career_->state())}; }

  /// Presses one thing after the other. What leads away is followed by a new arrival, with what was filled in so far.
  void visit(const Way& way) {
    arrive(way);
    const Shown arrived = career_->shown();
    if (const std::string problem = career_->fault(Care::full); !problem.empty()) note(problem);
    Way filledIn = way;
    std::optional<Looks> before;
    for (const auto& [pressable, value] : pressesHere()) {
      if (!stillOffered(pressable)) {  // what was filled in has put something else in its place
        arrive(way);
        filledIn = way;
        before.reset();
      }
      if (!before) before = looks();
      const TraceEvent event = press(pressable, value);
      const Looks after = looks();
      const bool changed = after.state != before->state;
      if (const std::string problem = career_->fault(changed ? Care::full : Care::little); !problem.empty()) {
        note(problem);
      }
      if (pressable.screenKey != "alert") judge(arrived, pressable, asksOutside_ || after != *before);
      if (kinds_.size() < mostPlaces && kinds_.insert(kindOfPlace()).second) ways_.push_back(way_);
      const Shown shown = career_->shown();
      if (shown.key == arrived.key && !shown.alert && !arrived.alert) {
        if (pressable.takes != Pressable::Takes::nothing) filledIn.push_back(event);
        before = after;
      } else {
        arrive(filledIn);
        before.reset();
      }
    }
  }

  bool stillOffered(const Pressable& pressable) {
    if (pressable.screenKey == "tabs" || pressable.screenKey == "nav") return true;
    const std::vector<Pressable> offered = career_->offered();
    return std::any_of(offered.begin(), offered.end(),
                       [&](const Pressable& each) { return each.action.id == pressable.action.id; });
  }

  TraceEvent press(const Pressable& pressable, const std::string& value) {
    const TraceEvent event = actEvent(career_->now(), pressable.screenKey, {pressable.action.id, value});
    if (pressable.screenKey == "tabs" || pressable.screenKey == "nav") {
      career_->play(event);
    } else {
      career_->press(pressable, value);
    }
    finishPress(event);
    return event;
  }

  void judge(const Shown& shown, const Pressable& pressable, bool changed) {
    const std::string what = std::string(shown.screen) + " " + std::string(pressable.action.verb());
    found_.offered.insert(what);
    if (changed) found_.answered.insert(what);
  }

  const NamedWorld& world_;
  KnownPlaces& known_;
  std::unique_ptr<WatchedCareer> career_;
  Way way_;                   ///< that the running career went
  bool asksOutside_ = false;  ///< what the last press led to may well look as before
  std::deque<Way> ways_;
  std::set<std::string> kinds_;
  Crawl found_;
};

}  // namespace

void Crawl::add(const Crawl& other) {
  coverage.add(other.coverage);
  faults.insert(faults.end(), other.faults.begin(), other.faults.end());
  offered.insert(other.offered.begin(), other.offered.end());
  answered.insert(other.answered.begin(), other.answered.end());
}

const Crawl& wholeCrawl() {
  static const Crawl whole = [] {
    KnownPlaces known;
    Crawl all;
    for (const NamedWorld& world : namedWorlds()) all.add(Crawler(world, known).crawl());
    return all;
  }();
  return whole;
}

}  // namespace backbeat
