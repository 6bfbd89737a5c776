// What an operation answers: alerts to show, a feeling, and where to go next. A refusal is an outcome, not an error.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/title.h"

namespace backbeat {

/// A press: the id of what was pressed, and what came with it (a text, a number, nothing).
/// An id may carry an argument behind a colon: "song:17".
struct Action {
  std::string id;
  std::string value;

  /// The part before the colon.
  std::string_view verb() const { return std::string_view(id).substr(0, id.find(':')); }
  /// The part behind the colon, or "".
  std::string_view argument() const {
    const size_t colon = id.find(':');
    return colon == std::string::npos ? std::string_view() : std::string_view(id).substr(colon + 1);
  }
};

struct AlertButton {
  std::string label = "👍";
  Action action;  ///< sent to the screen that raised the alert; an empty id just closes it
  enum class Style { normal, cancel, destructive } style = Style::normal;
};

/// A message to answer. Messages begin with a line break; the page drops the leading one and honours the others.
struct Alert {
  Alert(AlertTitle words, std::string text, std::vector<AlertButton> answers = {AlertButton{}})
      : title(std::move(words.text)), message(std::move(text)), buttons(std::move(answers)), from(words.from) {}

  std::string title;
  std::string message;
  std::vector<AlertButton> buttons;
  Title from;  ///< the registered title behind the shown one
};

/// What the hand feels. `energyBounce` shakes the energy figure: the week's energy does not reach.
enum class Feedback { none, energyBounce, success, warning };

/// Where to go: a segue by name with its argument, or back. Only the navigator opens and closes screens.
struct Go {
  std::string segue;  ///< empty: close the screen that answers
  std::string argument;
};

/// How a press ended.
enum class Result {
  done,      ///< or there was nothing to do
  asked,     ///< nothing yet: the answer to its question decides
  noEnergy,  ///< refused, and nothing is paid; the same for the next two
  noCash,
  refused,  ///< by the rule itself
};

struct Outcome {
  std::vector<Alert> alerts;
  Feedback feedback = Feedback::none;
  std::optional<Go> go;
  Result result = Result::done;

  bool done() const { return result == Result::done; }

  /// Appends the other's alerts; its feedback, its way and its result win where it has them.
  Outcome& operator+=(Outcome other);
};

// What a rule answers. Each word with a title has a short form, refuse<"🔥 Add Songs 🔥">("\n..."), and one for titles
// out of tables or with a name in them. Texts come by reference: the short form is made anew for each title, and is to
// be nothing but a call.

/// Done.
Outcome success();
/// Done, and the screen that answers closes.
Outcome successAndClose();
/// Done, and this is what came of it.
Outcome news(const AlertTitle& title, const std::string& message, Feedback feedback = Feedback::success);
/// The rule says no.
Outcome refuse(const AlertTitle& title, const std::string& message);
/// The week's energy does not reach: the energy figure shakes, with or without words.
Outcome bounce();
Outcome noEnergy(const AlertTitle& title, const std::string& message);
/// The cash does not reach.
Outcome noCash(const AlertTitle& title, const std::string& message);
/// A question: `no` leaves everything as it is, `yes` sends its action to the screen that asks.
Outcome ask(const AlertTitle& title, const std::string& message, const std::string& no, const AlertButton& yes);

Outcome goTo(std::string segue, std::string argument = {});
Outcome closeScreen();

template <FixedText words>
Outcome news(const std::string& message, Feedback feedback = Feedback::success) {
  return news(alertTitle<words>, message, feedback);
}
template <FixedText words>
Outcome refuse(const std::string& message) {
  return refuse(alertTitle<words>, message);
}
template <FixedText words = "⚡️ Not Enough Energy ⚡️">
Outcome noEnergy(const std::string& message) {
  return noEnergy(alertTitle<words>, message);
}
template <FixedText words = "💰 Not Enough Cash 💰">
Outcome noCash(const std::string& message) {
  return noCash(alertTitle<words>, message);
}
template <FixedText words>
Outcome ask(const std::string& message, const std::string& no, const AlertButton& yes) {
  return ask(alertTitle<words>, message, no, yes);
}

}  // namespace backbeat
