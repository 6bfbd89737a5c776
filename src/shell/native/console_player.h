// The game in a terminal, or over a pipe: prints what is on the glass and reads what the player types.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "shell/free_shop.h"
#include "shell/native/line_input.h"
#include "shell/native/view_printer.h"
#include "shell/trace.h"

namespace backbeat {

class ConsolePlayer {
 public:
  /// `career` plays on `store` with `shop`, and has been launched. `colour` adds the terminal's colours to what is
  /// printed. `now` gives the time of each press, in milliseconds since 1970; `columns` how wide the terminal is just
  /// now.
  ConsolePlayer(
      TraceRecorder& career, CareerStore& store, FreeShop& shop, LineInput input, std::ostream& out, bool colour,
      std::function<int64_t()> now, std::function<size_t()> columns = [] { return widestPage; });

  /// Plays until the player quits or the input ends.
  void run();

 private:
  void show();
  /// False when the player leaves.
  bool obey(std::string_view input);
  bool obeyWord(const std::string& word, std::string_view value);
  void exportTo(std::string_view words);
  void importFrom(std::string_view words);
  void relaunch();
  void obeyRequest();
  void answerShop();
  void pressNumber(size_t number, std::string_view value);
  /// The text for a field that was named by its number alone. Nothing once the input has ended.
  std::optional<std::string> askForText(const Pressable& field);
  void pressTab(size_t tab);
  void pressBack();
  void pressEnd();
  void pressWindow(bool earlier);
  void press(const std::string& screenKey, const Action& action);
  void say(const std::string& text);

  TraceRecorder& career_;
  CareerStore& store_;
  FreeShop& shop_;
  int64_t purchases_ = 0;  ///< of this run
  LineInput input_;
  std::ostream& out_;
  bool colour_;
  std::function<int64_t()> now_;
  std::function<size_t()> columns_;
  Shown shown_;
  PrintedScreen printed_;
  std::string noticeTold_;
  bool helpNamed_ = false;
};

}  // namespace backbeat
