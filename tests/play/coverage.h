// Where careers have been.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "shell/native/view_printer.h"

namespace backbeat {

struct Coverage {
  std::map<std::string, int64_t> segues;  ///< how often what each leads to was shown; a tab's root under its name
  /// By screen and the part of the action before the colon: how often it was pressed. 0: offered, never pressed.
  std::map<std::pair<std::string, std::string>, int64_t> actions;
  std::set<std::string> alerts;         ///< names of the titles shown
  std::set<std::string> unknownSegues;  ///< asked for by a screen, registered by nobody
  /// By segue: the shortest ways to it, one from each tab, as the segues passed through from the tab's root on. Of what
  /// lies over everything there is none.
  std::map<std::string, std::map<size_t, std::vector<std::string>>> ways;

  void add(const Coverage& other);
  /// Notes what is on the glass.
  void see(const Shown& shown, const std::vector<Pressable>& offered);
  /// Notes the way that led here. `segueOf` knows the screens of the launch by their keys, and learns this one.
  void noteWay(const Shown& shown, std::map<int64_t, std::string>& segueOf);
  /// Notes a press on what is on the glass.
  void press(const Shown& shown, const Pressable& pressed);
  /// Actions that were offered and never pressed, as "Screen action".
  std::vector<std::string> neverPressed() const;
};

}  // namespace backbeat
