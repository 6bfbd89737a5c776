#include "play/errand_runner.h"

#include <algorithm>
#include <optional>

#include "play/watched_career.h"

namespace backbeat {

namespace {

constexpr uint64_t seed = 7;
constexpr int mostPressesForOneWish = 30;
constexpr const char* anyText = "Midnight Rivers";

class ErrandRunner {
 public:
  explicit ErrandRunner(const NamedWorld& world) : career_(world) { career_.launch(seed); }

  /// The wish at which it stuck or what broke, or "".
  std::string run(const Errand& errand) {
    std::string stuck = tryOnce(errand);
    for (int64_t week = 0; !stuck.empty() && fault_.empty() && week < errand.weeks; ++week) {
      endTheWeek();
      stuck = tryOnce(errand);
    }
    check(Care::full);
    return fault_.empty() ? stuck : fault_ + ", " + lastWish_;
  }

  const Coverage& coverage() const { return career_.coverage; }

 private:
  std::string tryOnce(const Errand& errand) {
    for (const Wish& wish : errand.wishes) {
      lastWish_ = "at \"" + std::string(wish.what) + "\"";
      if (!grant(wish)) return "stuck " + lastWish_ + " on " + whatIsOffered();
    }
    return {};
  }

  /// Gets what bars the way out of it and does what is wished; false when that is nowhere to be seen.
  bool grant(const Wish& wish) {
    for (int presses = 0; presses < mostPressesForOneWish && fault_.empty(); ++presses) {
      const Shown shown = career_.shown();
      const std::vector<Pressable> offered = career_.offered();
      const Pressable* found = wished(wish, offered);
      const auto tab = tabNamed(wish.what);
      if (shown.alert) {
        press(found ? *found : offered.front(), wish);
        if (found || shown.alert->alert.title == wish.what) return true;
      } else if (found && !tab) {
        press(*found, wish);
        return true;
      } else if (shown.modal) {
        leave(shown, offered);
      } else if (!tab) {
        return false;
      } else if (goTo(*tab)) {
        return true;
      }
    }
    return false;
  }

  static std::optional<size_t> tabNamed(std::string_view name) {
    const auto found = std::find_if(tabs().begin(), tabs().end(), [&](const Tab& tab) { return tab.label == name; });
    if (found == tabs().end()) return std::nullopt;
    return static_cast<size_t>(found - tabs().begin());
  }

  static const Pressable* wished(const Wish& wish, const std::vector<Pressable>& offered) {
    const auto found = std::find_if(offered.begin(), offered.end(), [&](const Pressable& each) {
      return each.action.id == wish.what || each.action.verb() == wish.what || each.label == wish.what;
    });
    return found == offered.end() ? nullptr : &*found;
  }

  void press(const Pressable& pressable, const Wish& wish) {
    std::string value = pressable.action.value;
    if (pressable.takes == Pressable::Takes::text) value = anyText;
    if (pressable.takes == Pressable::Takes::option) value = std::to_string(pressable.options - 1);
    if (!wish.value.empty() && pressable.screenKey != "alert") value = wish.value;
    career_.press(pressable, value);
    afterPress();
  }

  /// One press towards the root of the tab; true once it is shown.
  bool goTo(size_t tab) {
    const Shown shown = career_.shown();
    if (shown.tab != tab || shown.stack.size() > 1) {
      career_.play(actEvent(career_.now(), "tabs", {"tab", std::to_string(tab)}));
      afterPress();
    }
    const Shown after = career_.shown();
    return after.tab == tab && after.stack.size() == 1 && !after.modal && !after.alert;
  }

  /// Closes a screen over the tabs, or fills in what it asks for and presses its main button.
  void leave(const Shown& shown, const std::vector<Pressable>& offered) {
    if (const Pressable* close = wished({"closeButton"}, offered)) return press(*close, {});
    for (const Pressable& each : offered) {
      if (each.takes == Pressable::Takes::text) press(each, {});
    }
    const std::string main = shown.view.mainAction ? shown.view.mainAction->id : "";
    for (const Pressable& each : offered) {
      if (each.action.id == main) press(each, {});
    }
  }

  void endTheWeek() {
    grant({"Home"});
    career_.play(actEvent(career_.now(), "nav", {"endTheWeekButton", ""}));
    afterPress();
  }

  void afterPress() {
    constexpr int64_t betweenPresses = 7'000;
    career_.pass(betweenPresses);
    if (fault_.empty()) fault_ = career_.obeyRequest(seed);
    check(Care::little);
  }

  void check(Care care) {
    if (fault_.empty()) fault_ = career_.fault(care);
  }

  std::string whatIsOffered() {
    const Shown shown = career_.shown();
    std::string text(shown.screen);
    if (shown.alert) text += " under \"" + shown.alert->alert.title + "\"";
    for (const Pressable& each : career_.offered()) text += ", " + each.action.id;
    return text.substr(0, 400);
  }

  WatchedCareer career_;
  std::string lastWish_;
  std::string fault_;
};

}  // namespace

const ErrandsRun& errandsRun() {
  static const ErrandsRun whole = [] {
    ErrandsRun run;
    for (const Errand& errand : errands()) {
      for (const std::string_view world : errand.worlds) {
        ErrandRunner runner(namedWorld(world));
        const std::string fault = runner.run(errand);
        if (!fault.empty()) {
          run.faults.push_back("\"" + std::string(errand.name) + "\" in \"" + std::string(world) + "\": " + fault);
        }
        run.coverage.add(runner.coverage());
      }
    }
    return run;
  }();
  return whole;
}

}  // namespace backbeat
