#include "play/glass.h"

#include <algorithm>

#include "core/icons.h"
#include "core/pictures.h"
#include "shell/native/terminal_text.h"
#include "shell/native/view_printer.h"
#include "shell/shown_json.h"

namespace backbeat {

namespace {

bool isKnown(const std::string& name) { return std::find(icons.begin(), icons.end(), name) != icons.end(); }

template <class Forms>
bool hasFormOf(const Forms& forms, const Picture& picture) {
  return std::find(forms.begin(), forms.end(), picture.name.substr(0, picture.name.find(':'))) != forms.end();
}

bool isDrawn(const Picture& picture) {
  switch (picture.kind) {
    case Picture::Kind::icon: return isKnown(picture.name);
    case Picture::Kind::object: return hasFormOf(objectForms, picture);
    case Picture::Kind::scene: return hasFormOf(sceneForms, picture);
    case Picture::Kind::still: return hasFormOf(stillForms, picture);
    case Picture::Kind::mark: return hasFormOf(markForms, picture);
    default: return true;
  }
}

/// The first icon or picture that nobody draws in a block, its items and their pictures; new kinds of block are looked
/// into as they come.
template <class Part>
std::string unknownIcon(const Part& part) {
  if constexpr (requires { part.icon; }) {
    if (!part.icon.empty() && !isKnown(part.icon)) return part.icon;
  }
  if constexpr (requires { part.picture; }) {
    if (!isDrawn(part.picture)) return part.picture.name;
  }
  if constexpr (requires { part.items; }) {
    for (const auto& item : part.items) {
      if (std::string found = unknownIcon(item); !found.empty()) return found;
    }
  }
  return {};
}

std::string unknownIconOf(const View& view) {
  std::string found = unknownIcon(view);
  for (const Block& block : view.blocks) {
    if (!found.empty()) break;
    found = std::visit([](const auto& b) { return unknownIcon(b); }, block);
  }
  return found;
}

std::string tooWideLine(const std::string& text) {
  constexpr size_t widest = 120;  // rows with every member in use run over; nothing may run away
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
  if (const std::string icon = unknownIconOf(once.view); !icon.empty()) return "nobody draws " + icon;
  return {};
}

}  // namespace backbeat
