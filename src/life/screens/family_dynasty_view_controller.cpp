#include "life/screens/family_dynasty_view_controller.h"

#include "core/own_photo.h"
#include "life/dynasty.h"

namespace backbeat {

Outcome FamilyDynastyViewController::act(const Action& action) {
  if (action.id == "book") window_.moveTo(action.value);
  if (action.verb() == "legacy") return goTo("goToDynastyDetail", std::string(action.argument()));
  if (action.verb() == "child") return goTo("goToChildDetail", std::string(action.argument()));
  return {};
}

View FamilyDynastyViewController::view() const {
  View view{.title = state().myArtistsName + "'s Dynasty", .theme = Theme::family};
  view.add(familyTree(state()));
  const RecordList<Legacy>& book = state().saveAllLegacyList;
  if (book.empty()) {
    view.add(EmptyHint{.icon = "document", .text = "The family's book is still empty. It begins with you."});
    return view;
  }
  view.add(pageOf(book.back()));
  view.add(Heading{"The family's book"});
  view.add(windowedRows("book", window_, static_cast<int64_t>(book.size()), [&](size_t i) {
    const std::string parents = childOfText(book[i]);
    return Row{.picture = portraitOf(book[i].imageString, book[i].name),
               .title = book[i].name,
               .subtitle = lifeYears(book[i]) + (parents.empty() ? "" : " " + parents),
               .opens = true,
               .id = "legacy:" + std::to_string(i)};
  }));
  return view;
}

}  // namespace backbeat
