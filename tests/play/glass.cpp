#include "play/glass.h"

#include <algorithm>

#include "core/icons.h"
#include "core/view_fields.h"
#include "core/view_find.h"
#include "shell/native/terminal_text.h"
#include "shell/native/view_printer.h"
#include "shell/shown_json.h"

namespace backbeat {

namespace {

bool isKnown(const std::string& name) { return std::find(icons.begin(), icons.end(), name) != icons.end(); }

/// The last icon that nobody draws, wherever in the view it is named; "" when all are known.
std::string unknownIconOf(const View& view) {
  std::string found;
  forEachRecord(view, [&](const ViewType& type, const void* record) {
    const std::string* icon = textOf(type, record, "icon");
    if (&type == &viewType<Picture>) {
      const Picture& picture = *static_cast<const Picture*>(record);
      if (picture.kind == Picture::Kind::icon) icon = &picture.name;
    }
    if (icon && !icon->empty() && !isKnown(*icon)) found = *icon;
  });
  return found;
}

std::string tooWideLine(const std::string& text) {
  constexpr size_t widest = 80;
  for (size_t begin = 0; begin < text.size();) {
    const size_t end = std::min(text.find('\n', begin), text.size());
    const std::string line = text.substr(begin, end - begin);
    if (columnsOf(line) > widest) return line;
    begin = end + 1;
  }
  return {};
}

}  // namespace

std::string glassFault(const Session& session, const std::function<Shown()>& shown) {
  const GameState& state = session.game().state;
  const uint64_t before = stateHash(state);
  const Shown once = shown();
  const std::string json = shownAsJson(session.navigator(), once);
  if (shownAsJson(session.navigator(), shown()) != json) return "it says something else the second time";
  if (const std::string line = tooWideLine(printScreen(session.navigator(), once, false).text); !line.empty()) {
    return "a printed line is too wide: " + line;
  }
  if (stateHash(state) != before) return "describing it changed the state";
  if (const std::string icon = unknownIconOf(once.view); !icon.empty()) return "nobody draws the icon " + icon;
  return {};
}

}  // namespace backbeat
