#include "music/screens/change_names_view_controllers.h"

#include <algorithm>

#include "core/money.h"
#include "core/text.h"
#include "core/view_words.h"
#include "music/guests.h"

namespace backbeat {

namespace {

constexpr int64_t longestName = 40;

}  // namespace

Outcome ChangeNamesViewController::open() {
  for (const Person& person : people()) {
    if (person.id == id_) typed_ = person.name;
  }
  return {};
}

Outcome ChangeNamesViewController::act(const Action& action) {
  if (action.id == "name") typed_ = action.value;
  if (action.id == "saveButton") return saveButton();
  if (action.verb() == "person") return goTo(ownSegue(), std::string(action.argument()));
  return {};
}

Outcome ChangeNamesViewController::saveButton() {
  const std::string name = firstCharacters(trimmed(typed_), longestName);
  if (name.empty()) return refuse<"🎤 Name Needed 🎤">("\nEverybody in this business needs a name.");
  rename(id_, name);
  return successAndClose();
}

View ChangeNamesViewController::view() const {
  View view{.title = title()};
  const std::vector<Person> all = people();
  const auto chosen = std::find_if(all.begin(), all.end(), [&](const Person& one) { return one.id == id_; });
  if (chosen == all.end()) {
    view.subtitle = "Give them other names";
    Rows rows;
    for (const Person& one : all) {
      rows.items.push_back({.picture = person(one.name),
                            .title = one.name,
                            .value = currency(static_cast<double>(one.cost)),
                            .opens = true,
                            .id = "person:" + std::to_string(one.id)});
    }
    view.add(std::move(rows));
    return view;
  }
  view.picture = person(typed_);
  view.subtitle = chosen->name;
  view.add(
      TextField{.id = "name", .label = "Name", .value = typed_, .placeholder = chosen->name, .maxLength = longestName});
  view.add(caption("Cost and talent stay as they are. Songs that are made already keep the old name."));
  view.mainAction = Button{.id = "saveButton", .label = "Save the name", .style = Button::Style::primary};
  return view;
}

std::vector<ChangeNamesViewController::Person> ChangeFeaturedArtistNameViewController::people() const {
  std::vector<Person> people;
  for (const FeaturedArtist& guest : guestTable(state())) people.push_back({guest.id, guest.name, guest.cost});
  return people;
}

void ChangeFeaturedArtistNameViewController::rename(int64_t id, const std::string& name) {
  renameGuest(game_, id, name);
}

std::vector<ChangeNamesViewController::Person> ChangeCameoNamesViewController::people() const {
  std::vector<Person> people;
  for (const CelebrityCameo& cameo : cameoTable(state())) people.push_back({cameo.id, cameo.name, cameo.cost});
  return people;
}

void ChangeCameoNamesViewController::rename(int64_t id, const std::string& name) { renameCameo(game_, id, name); }

}  // namespace backbeat
