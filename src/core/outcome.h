// What an operation answers: alerts to show, a feeling, and where to go next. A refusal is an outcome, not an error.
#pragma once

#include <optional>
#include <string>
#include <vector>

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
  std::string title;
  std::string message;
  std::vector<AlertButton> buttons = {AlertButton{}};
};

/// What the hand feels. `energyBounce` shakes the energy figure: the week's energy does not reach.
enum class Feedback { none, energyBounce, success, warning };

/// Where to go: a segue by name with its argument, or back. Only the navigator opens and closes screens.
struct Go {
  std::string segue;  ///< empty: close the screen that answers
  std::string argument;
};

struct Outcome {
  std::vector<Alert> alerts;
  Feedback feedback = Feedback::none;
  std::optional<Go> go;

  /// Appends the other's alerts; its feedback and its way win where it has them.
  Outcome& operator+=(Outcome other);
};

Outcome alert(std::string title, std::string message);
Outcome bounce();
Outcome success();
Outcome goTo(std::string segue, std::string argument = {});
Outcome closeScreen();

}  // namespace backbeat
