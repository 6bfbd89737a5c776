// Turns what is on the glass into text for a terminal, with a number before everything that can be pressed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "shell/navigator.h"

namespace backbeat {

/// Something on the screen that can be pressed.
struct Pressable {
  enum class Takes {
    nothing,
    text,    ///< whatever is typed
    photo,   ///< the address of a picture
    option,  ///< the number of an option, or a position, from 0
    flag,    ///< "1" or "0"
    row,     ///< the first row to show of a long list
  };
  std::string screenKey;
  Action action;  ///< as sent when nothing more is told: the other position of a toggle, the next rows of a list
  Takes takes = Takes::nothing;
  std::string label;
  int64_t options = 0;    ///< of a choice or slider
  int64_t maxLength = 0;  ///< of a text, 0 for no limit
  bool earlier = false;   ///< leads to earlier rows of a long list; one that takes a row and is not, to later ones
};

struct PrintedScreen {
  std::string text;
  std::vector<Pressable> pressables;  ///< number 1 first; while an alert stands, its buttons alone
};

/// No page is wider, on whatever terminal; on one that is narrower than the narrowest page, lines break as they may.
inline constexpr size_t widestPage = 80;
inline constexpr size_t narrowestPage = 40;

/// The screen on a terminal so many columns wide. `colour` adds the terminal's colours.
PrintedScreen printScreen(const Navigator& navigator, const Shown& shown, bool colour, size_t columns = widestPage);

/// The help behind a screen's information button; one line that says so when it has none.
std::string printHelp(const View& view, size_t columns = widestPage);

}  // namespace backbeat
