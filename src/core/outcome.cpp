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

Outcome news(const AlertTitle& title, const std::string& message, Feedback feedback) {
  return withAlert({title, message}, feedback, Result::done);
}

Outcome refuse(const AlertTitle& title, const std::string& message) {
  return withAlert({title, message}, Feedback::warning, Result::refused);
}

Outcome bounce() {
  Outcome outcome;
  outcome.feedback = Feedback::energyBounce;
  outcome.result = Result::noEnergy;
  return outcome;
}

Outcome noEnergy(const AlertTitle& title, const std::string& message) {
  return withAlert({title, message}, Feedback::energyBounce, Result::noEnergy);
}

Outcome noCash(const AlertTitle& title, const std::string& message) {
  return withAlert({title, message}, Feedback::warning, Result::noCash);
}

Outcome ask(const AlertTitle& title, const std::string& message, const std::string& no, const AlertButton& yes) {
  std::vector<AlertButton> answers = {{no, {}, AlertButton::Style::cancel}, yes};
  return withAlert({title, message, std::move(answers)}, Feedback::none, Result::asked);
}

Outcome goTo(std::string segue, std::string argument) {
  Outcome outcome;
  outcome.go = Go{std::move(segue), std::move(argument)};
  return outcome;
}

Outcome closeScreen() { return goTo({}); }

}  // namespace backbeat
