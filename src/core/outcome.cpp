#include "core/outcome.h"

#include <utility>

namespace backbeat {

namespace {

Outcome withAlert(Alert alert, Feedback feedback, Result result) {
  Outcome outcome;
  outcome.alerts.push_back(std::move(alert));
  outcome.feedback = feedback;
  outcome.result = result;
  return outcome;
}

}  // namespace

Outcome& Outcome::operator+=(Outcome other) {
  for (Alert& alert : other.alerts) alerts.push_back(std::move(alert));
  if (other.feedback != Feedback::none) feedback = other.feedback;
  if (other.go) go = std::move(other.go);
  if (!other.done()) result = other.result;
  return *this;
}

Outcome success() {
  Outcome outcome;
  outcome.feedback = Feedback::success;
  return outcome;
}

Outcome successAndClose() {
  Outcome outcome = closeScreen();
  outcome.feedback = Feedback::success;
  return outcome;
}

Outcome news(AlertTitle title, std::string message, Feedback feedback) {
  return withAlert({std::move(title), std::move(message)}, feedback, Result::done);
}

Outcome refuse(AlertTitle title, std::string message) {
  return withAlert({std::move(title), std::move(message)}, Feedback::warning, Result::refused);
}

Outcome bounce() {
  Outcome outcome;
  outcome.feedback = Feedback::energyBounce;
  outcome.result = Result::noEnergy;
  return outcome;
}

Outcome noEnergy(AlertTitle title, std::string message) {
  return withAlert({std::move(title), std::move(message)}, Feedback::energyBounce, Result::noEnergy);
}

Outcome noCash(AlertTitle title, std::string message) {
  return withAlert({std::move(title), std::move(message)}, Feedback::warning, Result::noCash);
}

Outcome ask(AlertTitle title, std::string message, std::string no, AlertButton yes) {
  std::vector<AlertButton> answers = {{std::move(no), {}, AlertButton::Style::cancel}, std::move(yes)};
  return withAlert({std::move(title), std::move(message), std::move(answers)}, Feedback::none, Result::asked);
}

Outcome goTo(std::string segue, std::string argument) {
  Outcome outcome;
  outcome.go = Go{std::move(segue), std::move(argument)};
  return outcome;
}

Outcome closeScreen() { return goTo({}); }

}  // namespace backbeat
