// The screens that have most to say.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/session.h"

namespace backbeat {

struct HeavyScreen {
  const char* name;
  std::vector<std::string> presses;  ///< the way there from anywhere: a tab's number, then ids; empty for the report
};
const std::vector<HeavyScreen>& heavyScreens();
/// Those of a label, and of a family and its fortune, besides.
const std::vector<HeavyScreen>& labelScreens();
const std::vector<HeavyScreen>& familyScreens();

/// Goes to the screen; a report that stands there is read first, unless it is the one. After the report the week is
/// over.
void goToScreen(Session& session, const HeavyScreen& screen);

/// What the page gets after a press: the whole glass, as JSON.
std::string describedScreen(const Session& session);

/// A screen that is opened without a way to it.
struct LooseScreen {
  std::string name;
  std::unique_ptr<Screen> screen;
};
/// Every screen of the game, each about that of which it has most to say.
std::vector<LooseScreen> everyScreen(Session& session);
/// What the page would get if it were on the glass.
std::string describedScreen(const Session& session, Shown& glass, const Screen& screen);

/// A press of `id` on the screen of that key.
using Press = std::function<void(const std::string& screenKey, const std::string& id, const std::string& value)>;

/// Ends the week, answers everything and closes the report, all by `press`.
void endTheWeek(Session& session, const Press& press);
/// The last part of it; nothing when no report stands there.
void closeTheReport(Session& session, const Press& press);

/// A press at a time that is always the same.
void pressOnce(Session& session, const std::string& screenKey, const std::string& id, const std::string& value);

}  // namespace backbeat
