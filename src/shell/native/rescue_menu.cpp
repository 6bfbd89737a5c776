#include "shell/native/rescue_menu.h"

#include <istream>
#include <ostream>
#include <sstream>
#include <vector>

#include "core/save_file.h"
#include "core/screen.h"
#include "shell/native/career_transfer.h"
#include "shell/native/career_trial.h"
#include "shell/native/copies_command.h"
#include "shell/native/file_places.h"

namespace backbeat {

namespace {

constexpr const char* menu =
    "  export FILE      the career as a file\n"
    "  copies           the kept copies\n"
    "  restore N        goes back to one; what is there now is kept aside\n"
    "  again            one more try\n"
    "  quit             leaves; everything stays as it is\n"
    "--force behind export and restore does what was refused without it.\n";

/// What was typed: a word, --force or not, and the rest.
struct Order {
  explicit Order(const std::string& line) {
    std::istringstream words(line);
    words >> word;
    for (std::string next; words >> next;) {
      if (next == "--force") {
        force = true;
      } else {
        rest += (rest.empty() ? "" : " ") + next;
      }
    }
  }

  std::string word;
  std::string rest;
  bool force = false;
};

std::string exportStored(Store& store, const Order& order) {
  if (order.rest.empty()) return "Type the name of a file behind it: export nova.plist";
  GameState state;
  if (!SaveFile(store).load(state).readable) return "The save cannot be read to its end.";
  std::string problem = targetRefusal(order.rest, "", order.force);
  if (problem.empty()) problem = exportToFile(state, order.rest);
  return problem.empty() ? "The career is in " + order.rest + "." : problem;
}

CopyTask restoreNumbered(CareerStore& store, const Order& order, Date now) {
  const auto copy = numberedCopy(store, wholeNumber(order.rest).value_or(0));
  if (!copy) return {false, "Type the number of a copy behind it: restore 1"};
  return goBackTo(store, *copy, now, order.force);
}

}  // namespace

std::string launchProblem(Store& store, Date now) {
  std::vector<Write> rows;
  const bool readable = store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    rows.push_back({std::string(key), chunk, value});
  });
  return readable ? trialProblem(rows, Trial::launch, now) : "";
}

bool rescue(CareerStore& store, std::string problem, std::istream& in, std::ostream& out,
            const std::function<Date()>& now) {
  while (!problem.empty()) {
    out << problem << " It is not started, and nothing is lost.\n" << menu << std::flush;
    bool again = false;
    for (std::string line; !again && std::getline(in, line);) {
      const Order order(line);
      if (order.word == "quit" || order.word == "exit") return false;
      again = order.word == "again";
      if (order.word == "export") {
        out << exportStored(store, order) << '\n';
      } else if (order.word == "copies") {
        out << listOfCopies(store);
      } else if (order.word == "restore") {
        const CopyTask task = restoreNumbered(store, order, now());
        again = task.done;
        out << task.text << '\n';
      } else if (!again) {
        out << menu;
      }
      out.flush();
    }
    if (!again) return false;
    problem = launchProblem(store, now());
  }
  return true;
}

}  // namespace backbeat
