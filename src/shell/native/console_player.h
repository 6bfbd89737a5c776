// The game in a terminal, or over a pipe: prints what is on the glass and reads what the player types.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "shell/native/view_printer.h"
#include "shell/trace.h"

namespace backbeat {

class ConsolePlayer {
 public:
  struct Look {
    bool prompt = false;  ///< a sign before each input, for a person at a terminal
    bool colour = false;
  };

  /// `career` plays on `store` and has been launched. `now` gives the time of each press, in milliseconds since 1970.
  ConsolePlayer(TraceRecorder& career, CareerStore& store, std::istream& in, std::ostream& out, Look look,
                std::function<int64_t()> now);

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
  void pressNumber(size_t number, std::string_view value);
  void pressTab(size_t tab);
  void pressBack();
  void pressEnd();
  void pressWindow(bool earlier);
  void press(const std::string& screenKey, const Action& action);
  void say(const std::string& text);

  TraceRecorder& career_;
  CareerStore& store_;
  std::istream& in_;
  std::ostream& out_;
  Look look_;
  std::function<int64_t()> now_;
  Shown shown_;
  PrintedScreen printed_;
};

}  // namespace backbeat
