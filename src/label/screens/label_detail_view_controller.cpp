#include "label/screens/label_detail_view_controller.h"

#include <algorithm>

#include "career/skill.h"
#include "career/studio.h"
#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "label/accounts.h"
#include "label/launch.h"
#include "label/office.h"
#include "label/roster.h"
#include "label/screens/label_words.h"
#include "label/staff.h"

namespace backbeat {

namespace {

constexpr std::string_view confirmClose = "confirmClose";

/// Means of a list, 0 of nobody.
template <class T, class Member>
double meanOf(const RecordList<T>& list, Member&& member) {
  double sum = 0;
  for (const T& each : list) sum += member(each);
  return list.empty() ? 0 : sum / static_cast<double>(list.size());
}

struct Roster {
  int64_t active = 0;
  int64_t dropped = 0;
  double rating = 0;     ///< mean of the active ones, as are the next
  double happiness = 0;  ///< 0 without any
};

Roster rosterOf(const GameState& state) {
  Roster roster;
  for (const SignedArtist& artist : state.saveAllSignedArtistList) {
    (artist.underContract ? roster.active : roster.dropped) += 1;
    if (!artist.underContract) continue;
    roster.rating += static_cast<double>(artistRating(artist));
    roster.happiness += artist.happiness;
  }
  const auto active = static_cast<double>(std::max<int64_t>(roster.active, 1));
  roster.rating /= active;
  roster.happiness /= active;
  return roster;
}

Row artistRow(const SignedArtist& artist) {
  const int64_t rating = artistRating(artist);
  return {.picture = person(artist.name),
          .title = artist.name,
          .subtitle = abbreviated(static_cast<double>(artist.monthlyListeners)),
          .value = std::to_string(rating),
          .tone = toneOfBand(static_cast<double>(rating)),
          .id = "artist:" + std::to_string(artist.artistId)};
}

/// Leads to the one artist from whom something is due, or to all of them.
void addDue(Rows& rows, const DueArtists& due, const std::string& one, const std::string& several) {
  if (due.count == 0) return;
  const bool isOne = due.count == 1;
  rows.items.push_back({.picture = person(due.first->name),
                        .title = isOne ? due.first->name : std::to_string(due.count) + several,
                        .subtitle = isOne ? one : "",
                        .badge = "!",
                        .opens = true,
                        .id = isOne ? "artist:" + std::to_string(due.first->artistId) : "goToSignedArtists"});
}

/// The unhappiest of those in the department whose happiness costs them their rating, and how many they are.
struct Unhappy {
  const Employee* worst = nullptr;
  int64_t count = 0;
};

Unhappy unhappyIn(const GameState& state, int64_t code) {
  Unhappy unhappy;
  for (const Employee& employee : state.saveAllEmployeeList) {
    if (employee.employeeDepartmentCode != code || employee.employeeMorale >= unhappyBelow) continue;
    if (!unhappy.worst || employee.employeeMorale < unhappy.worst->employeeMorale) unhappy.worst = &employee;
    unhappy.count += 1;
  }
  return unhappy;
}

size_t weakestDepartment(const LabelRatings& label) {
  const auto weakest = std::min_element(
      label.departments.begin(), label.departments.end(),
      [](const DepartmentStanding& a, const DepartmentStanding& b) { return a.studioRating < b.studioRating; });
  return static_cast<size_t>(weakest - label.departments.begin());
}

/// What of a department needs the player; a row without a title when nothing does.
Row concernOf(const GameState& state, const LabelRatings& label, size_t code) {
  const DepartmentStanding& standing = label.departments[code];
  const Unhappy unhappy = unhappyIn(state, static_cast<int64_t>(code));
  const bool understaffed = isUnderstaffed(state, standing);
  const bool weakest = code == weakestDepartment(label);
  const std::string name(departments[code].shortName);
  Row row = wayTo("department:" + std::to_string(code), std::string(departments[code].icon), "");
  if (unhappy.worst) {
    row.picture = staffPortrait(*unhappy.worst);
    row.title = name + ": " + std::to_string(unhappy.count) + " unhappy";
    row.subtitle = "Below " + shortNumber(unhappyBelow) + " happiness, ratings fall";
  } else if (understaffed) {
    row.title = name + " is understaffed";
    row.subtitle = "One of the staff for every " + counted(artistsForEach, "artist");
  } else if (weakest) {
    row.title = name + " drags the label down";
    row.subtitle = standing.staff == 0 ? "Nobody works there yet" : "";
  }
  if (weakest) row.subtitle += std::string(row.subtitle.empty() ? "" : "\n") + "The weakest counts twice";
  row.badge = unhappy.worst || understaffed ? "!" : weakest ? "LOWEST" : "";
  return row;
}

}  // namespace

Outcome LabelDetailViewController::open() {
  if (state().isLabelLaunched < 1) return {};
  refreshLabelRatings(game_);
  storedRoyalties_ = storedRoyalties(game_);
  return {};
}

Outcome LabelDetailViewController::press(const Action& action) {
  if (action.verb() == "department") return goTo("goToDepartment", std::string(action.argument()));
  if (action.id == "closeLabel") return askToCloseLabel(state(), {std::string(confirmClose), ""});
  if (action.id == confirmClose) {
    closeLabel(game_);
    return closeScreen();
  }
  if (action.verb() == "artist") return goTo("goToSignedArtistDetail", std::string(action.argument()));
  for (const std::string_view way :
       {"goToFindNewArtists", "goToLabelHireStaff", "goToLabelCapacity", "goToLabelBenefits", "goToCreateSignedArtist",
        "goToSignedArtists", "goToArtistRoi"}) {
    if (action.id == way) return goTo(action.id);
  }
  return {};
}

void LabelDetailViewController::describe(View& view) const {
  const LabelRatings label = departmentRatings(state());
  view.add(Cover{.picture = logoOf(state()),
                 .title = state().myLabelName,
                 .text = state().myLabelSlogan,
                 .badge = std::to_string(label.overall)});
  describeDue(view);
  describeDepartments(view, label);
  describeRoster(view);
  describeMoney(view, label);
  describeWays(view);
  view.add(Button{.id = "closeLabel", .label = "Close the Doors", .style = Button::Style::destructive});
  view.mainAction = Button{.id = "goToFindNewArtists", .label = "Scout New Artists", .style = Button::Style::primary};
  view.help =
      Help{.title = "Running a label",
           .text =
               "The faders show what your staff rate. With what you bring yourself they make the label's own rating, "
               "in which the weakest department counts twice: artists look at it before they sign.\n\nEach "
               "department gives a bonus that follows its rating whenever you come here: happier artists, better "
               "terms, more virality and marketing for what you record, and more revenue.\n\nA week takes energy, "
               "salaries, perks and rent, whatever the artists bring."};
}

void LabelDetailViewController::describeDue(View& view) const {
  Rows due;
  addDue(due, dueArtists(state(), contractIsUp), "The contract is up", " contracts are up");
  addDue(due, dueArtists(state(), albumWaits), "The album is complete", " albums are complete");
  if (!due.items.empty()) view.add(std::move(due));
}

void LabelDetailViewController::describeDepartments(View& view, const LabelRatings& label) const {
  Gauges desk{.title = "Departments",
              .note = std::to_string(state().saveAllEmployeeList.size()) + "/" +
                      std::to_string(state().officeCapacity) + " EMPLOYEES",
              .style = Gauges::Style::faders};
  Rows concerns;
  for (size_t code = 0; code < departmentCount; ++code) {
    const DepartmentStanding& standing = label.departments[code];
    Gauge fader = levelGauge(std::string(departments[code].shortName), static_cast<double>(standing.rating));
    fader.note = std::to_string(standing.staff) + " EMPLOYEE(S)";
    fader.id = "department:" + std::to_string(code);
    desk.items.push_back(std::move(fader));
    Row concern = concernOf(state(), label, code);
    if (!concern.title.empty()) concerns.items.push_back(std::move(concern));
  }
  sortStably(concerns.items, [](const Row& a, const Row& b) { return a.badge == "!" && b.badge != "!"; });
  view.add(std::move(desk));
  view.add(std::move(concerns));
}

void LabelDetailViewController::describeRoster(View& view) const {
  const Roster roster = rosterOf(state());
  view.add(Heading{"Roster"});
  Rows strip{.style = Rows::Style::strip};
  for (const SignedArtist& artist : state().saveAllSignedArtistList) {
    if (artist.underContract) strip.items.push_back(artistRow(artist));
  }
  if (strip.items.empty()) {
    view.add(EmptyHint{.icon = "mic", .text = "Nobody has signed yet. Your scouts know where to look."});
  } else {
    view.add(std::move(strip));
  }
  view.add(
      Rows{{wayTo("goToSignedArtists", "mic", "Artists",
                  std::to_string(roster.active) + " ACTIVE • " + std::to_string(roster.dropped) + " DROPPED ARTIST(S)",
                  std::to_string(roster.active) + "/" + std::to_string(state().studioCapacity))}});
}

void LabelDetailViewController::describeMoney(View& view, const LabelRatings& label) const {
  const double royalties = lastWeeksRoyalties(state());
  view.add(Tiles{{{.label = "Royalties",
                   .value = currency(royalties),
                   .note = "last week",
                   .tone = royalties > 0 ? Tone::good : Tone::plain},
                  {.label = "Running costs", .value = currency(runningCosts(state())), .note = "a week"}}});
  const RecordList<Employee>& staff = state().saveAllEmployeeList;
  const Roster roster = rosterOf(state());
  Gauges means;
  if (!staff.empty()) {
    means.items.push_back(
        levelGauge("Staff energy", meanOf(staff, [](const Employee& each) { return each.employeeEnergy; })));
    means.items.push_back(
        levelGauge("Staff happiness", meanOf(staff, [](const Employee& each) { return each.employeeMorale; })));
  }
  if (roster.active > 0) {
    means.items.push_back(levelGauge("Artist rating", roster.rating));
    means.items.push_back(levelGauge("Artist happiness", roster.happiness));
  }
  if (!means.items.empty()) view.add(std::move(means));
  view.add(Text{.text = state().myLabelName + " (" + std::to_string(label.overall) +
                        ") is an international, label boasting a world renown in-house studio (" +
                        std::to_string(studioRating(state())) + ") and generating " + currency(storedRoyalties_) +
                        " in royalties."});
}

void LabelDetailViewController::describeWays(View& view) const {
  const double energy = state().labelEnergyBoost;
  const double morale = state().labelMoraleBoost;
  const bool spoils = energy != 0 || morale != 0;
  view.add(Heading{"The house"});
  view.add(
      Rows{{wayTo("goToLabelHireStaff", "people", "Hire Staff", "See who wants to work here"),
            wayTo("goToLabelCapacity", "skyline", "Office & Studio",
                  std::to_string(boothCount(state())) + " BOOTH(S) INSTALLED", std::to_string(state().officeCapacity)),
            wayTo("goToLabelBenefits", "coffee", "Benefits & Culture",
                  spoils ? "+" + shortNumber(energy) + " ENERGY • +" + shortNumber(morale) + " HAPPINESS"
                         : "What your staff get besides their pay"),
            wayTo("goToCreateSignedArtist", "pencil", "Create an Artist", "After your own idea"),
            wayTo("goToArtistRoi", "trend", "Return on Investment", "What it has all come to")}});
}

}  // namespace backbeat
