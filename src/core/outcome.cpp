#include "core/outcome.h"

#include <utility>

namespace backbeat {

Outcome& Outcome::operator+=(Outcome other) {
  for (Alert& alert : other.alerts) alerts.push_back(std::move(alert));
  if (other.feedback != Feedback::none) feedback = other.feedback;
  if (other.go) go = std::move(other.go);
  return *this;
}

Outcome alert(std::string title, std::string message) {
  Outcome outcome;
  outcome.alerts.push_back({std::move(title), std::move(message)});
  outcome.feedback = Feedback::warning;
  return outcome;
}

Outcome bounce() {
  Outcome outcome;
  outcome.feedback = Feedback::energyBounce;
  return outcome;
}

Outcome success() {
  Outcome outcome;
  outcome.feedback = Feedback::success;
  return outcome;
}

Outcome goTo(std::string segue, std::string argument) {
  Outcome outcome;
  outcome.go = Go{std::move(segue), std::move(argument)};
  return outcome;
}

Outcome closeScreen() { return goTo({}); }

}  // namespace backbeat
