// Owns what is open: a stack of screens for each tab, the modal screens over them, and the queue of alerts. The only
// one that opens, shows and closes screens, and the only way in for a press.
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/screen.h"
#include "shell/registry.h"
#include "turn/week_cycle.h"

namespace backbeat {

/// The header, over every screen that is not modal.
struct Header {
  std::string cash;
  Tone cashTone = Tone::plain;  ///< bad when negative
  std::string energy;           ///< "73 / 104"
  double energyShare = 0;       ///< 0 to 1
  std::string date;             ///< "Week 14, 2023"
};

/// What the program around the game has to do after a press, because only it can.
struct Request {
  enum class Kind {
    none,
    exportCareer,  ///< hand the player the career as a file
    importCareer,  ///< ask for a file and put the career in it in the place of this one
    restore,       ///< go back to the kept copy `snapshot`: put it in the place of the save and launch anew
    purchase,      ///< ask the shop for `product`
    review,        ///< the game would like a rating
    feedback,      ///< let the player write to the makers
    replay,        ///< hand the player the trace of this launch
  } kind = Kind::none;
  std::string snapshot = {};
  std::string product = {};
  std::string text = {};  ///< of feedback: what helps whoever reads it
};

/// A screen that is not on top, as it describes itself.
struct OtherScreen {
  std::string_view screen;
  int64_t key = 0;
  View view;
};

/// Everything that is on the glass: what the page draws and the console prints.
struct Shown {
  Header header;
  std::array<std::string, tabCount> badges;
  size_t tab = 0;
  std::vector<int64_t> stack;  ///< keys, root first; the last is shown
  bool modal = false;
  bool endWeek = false;  ///< END THE WEEK is offered here
  std::string appearance;
  Feedback feedback = Feedback::none;
  Result result = Result::done;  ///< of the press that led here
  struct ShownAlert {
    int64_t key = 0;
    Alert alert;
  };
  std::optional<ShownAlert> alert;
  std::string notice;
  Request request;
  std::string_view segue;  ///< that led here; a tab's name for its root
  std::string_view screen;
  int64_t key = 0;
  View view;
  std::optional<OtherScreen> beside;  ///< at a desk: what can be seen next to the screen of the tab that is on top
};

/// Answered instead of a segue by a screen that needs the program around the game; see Request. The last one carries
/// the copy's name.
inline constexpr std::string_view exportCareerSegue = "exportCareer";
inline constexpr std::string_view importCareerSegue = "importCareer";
inline constexpr std::string_view restoreSegue = "restoreSnapshot";
inline constexpr std::string_view feedbackSegue = "writeFeedback";
inline constexpr std::string_view replaySegue = "handOverReplay";

class Navigator {
 public:
  explicit Navigator(Game& game);
  ~Navigator();

  /// Opens the first screen of a launch, after the state was loaded: the music tab until the artist has a name, then
  /// home. `report` says what loading found.
  void start(const LoadReport& report);

  /// One press, one transaction. `screenKey` is the number of the screen it was meant for, or "tabs", "nav" or "alert";
  /// a press for a screen that is not shown, or anything but the answer while an alert stands, is ignored. "desk" on
  /// "nav" says whether two screens find room side by side, which holds for the rest of the launch.
  void press(std::string_view screenKey, const Action& action);

  /// What the shop answers, one transaction like a press. What came of it is shown on whatever screen is open, and the
  /// shop is told once it is stored.
  void takePurchase(const PurchaseAnswer& answer);

  Shown shown() const;

  /// The root of a tab that was not opened yet, as it would describe itself now, under the key that it will have; none
  /// once it is open. It stays closed: who asks learns what a press may show, and nothing has happened.
  std::optional<OtherScreen> ahead(size_t tab) const;

  /// Has every turn from now on tell `observer` of its steps.
  void observeTurns(StepObserver observer) { turnObserver_ = std::move(observer); }

  /// The segues that screens asked for and nobody has registered, in the order of asking; such a press leads nowhere.
  const std::vector<std::string>& unknownSegues() const { return unknownSegues_; }

  /// True when the price can be paid with what the artist has now.
  bool affordable(const Price& price) const;

 private:
  struct Open {
    int64_t key;
    const Segue* segue;
    std::shared_ptr<Screen> screen;
  };
  struct QueuedAlert {
    int64_t key;
    Alert alert;
    std::shared_ptr<Screen> from;  ///< kept alive until the alert is answered
  };

  void tell(std::string_view what, const std::vector<std::string>& keys);
  void openFirstScreens();
  void startOver();
  const Open& top() const;
  std::vector<Open>& stackOfTop();
  std::string badgeOf(TabNumber tab) const;
  bool onTabRoot() const;
  bool endWeekOffered() const;
  void dispatch(std::string_view screenKey, const Action& action);
  void answerAlert(const Action& action);
  void act(const std::shared_ptr<Screen>& screen, const Action& action);
  void selectTab(size_t number);
  void closeToRoot(std::vector<Open>& stack);
  void closeTop();
  const Open* besideTop() const;
  void endTheWeek();
  void keepNewYear();
  int64_t rootKey(size_t tab) const { return firstRootKey_ + static_cast<int64_t>(tab); }
  void openRoot(size_t tab);
  void open(std::vector<Open>& stack, const Segue& segue, std::string_view argument);
  void open(std::vector<Open>& stack, int64_t key, const Segue& segue, std::string_view argument);
  void follow(const std::shared_ptr<Screen>& from, Outcome outcome);
  bool admitted(const Segue& segue, const std::shared_ptr<Screen>& from);
  void appear();
  bool followReserved(const Go& go);

  Game& game_;
  std::array<std::vector<Open>, tabCount> stacks_;
  std::vector<Open> modals_;
  std::deque<QueuedAlert> alerts_;
  size_t tab_ = homeTab;
  bool desk_ = false;
  int64_t lastKey_ = 0;       ///< of a screen
  int64_t firstRootKey_ = 0;  ///< of home; those of the other tabs follow, opened or not
  int64_t lastAlertKey_ = 0;  ///< counted by itself, so that what is asked moves no screen's key
  Feedback feedback_ = Feedback::none;
  Result result_ = Result::done;
  std::string notice_;
  Request request_;
  std::vector<std::string> unknownSegues_;
  StepObserver turnObserver_;
};

}  // namespace backbeat
