#include "play/glass.h"

#include <algorithm>
#include <array>

#include "core/icons.h"
#include "core/own_photo.h"
#include "core/pictures.h"
#include "core/view_fields.h"
#include "core/view_find.h"
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

/// The last icon or picture that nobody draws, wherever in the view it is named; "" when all are known.
std::string unknownIconOf(const View& view) {
  std::string found;
  forEachRecord(view, [&](const ViewType& type, const void* record) {
    const std::string* icon = textOf(type, record, "icon");
    if (&type == &viewType<Picture>) {
      const Picture& picture = *static_cast<const Picture*>(record);
      if (!isDrawn(picture)) found = picture.name;
    }
    if (icon && !icon->empty() && !isKnown(*icon)) found = *icon;
  });
  return found;
}

/// Screens of other people, who may have been given the artist's name.
constexpr std::array<std::string_view, 4> screensOfOthers = {"FeaturingViewController",
                                                             "ChangeFeaturedArtistNameViewController",
                                                             "ChangeCameoNamesViewController", "CameoViewController"};

/// Whether the artist, who has a photo, is drawn with another face.
bool hidesThePhoto(const Shown& shown, const GameState& state) {
  const bool ofOthers =
      std::find(screensOfOthers.begin(), screensOfOthers.end(), shown.screen) != screensOfOthers.end();
  if (ofOthers || artistPicture(state).kind != Picture::Kind::photo) return false;
  bool found = false;
  forEachRecord(shown.view, [&](const ViewType& type, const void* record) {
    if (&type != &viewType<Picture>) return;
    const Picture& picture = *static_cast<const Picture*>(record);
    found = found || (picture.kind == Picture::Kind::person && picture.name == state.myArtistsName);
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
  for (size_t tab = 0; tab < tabCount; ++tab) session.navigator().ahead(tab);
  if (stateHash(state) != before) return "describing it, or what lies ahead, changed the state";
  if (const std::string icon = unknownIconOf(once.view); !icon.empty()) return "nobody draws " + icon;
  if (hidesThePhoto(once, state)) return "the artist has another face than the photo";
  return {};
}

}  // namespace backbeat
