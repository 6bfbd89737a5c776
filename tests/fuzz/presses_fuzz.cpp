// Bytes become presses of a career: on what is offered, and on what is not. It goes on in a career that has something
// of everything, or in a new one, as the first byte says.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/memory_store.h"
#include "play/worlds.h"
#include "shell/native/view_printer.h"
#include "shell/shown_json.h"
#include "shell/trace.h"

namespace backbeat {
namespace {

class Bytewise {
 public:
  Bytewise(const uint8_t* data, size_t size) : left_(reinterpret_cast<const char*>(data), size) {}
  bool any() const { return !left_.empty(); }
  uint8_t byte() {
    if (left_.empty()) return 0;
    const auto first = static_cast<uint8_t>(left_.front());
    left_.remove_prefix(1);
    return first;
  }
  /// As many bytes as the first says.
  std::string text() {
    const std::string_view taken = left_.substr(0, byte());
    left_.remove_prefix(taken.size());
    return std::string(taken);
  }

 private:
  std::string_view left_;
};

enum Kind : uint8_t { pressAsOffered, pressOption, pressWithText, foreign, tab, endWeek, back, launch, kinds };

TraceEvent eventFrom(Bytewise& bytes, const Session& session, int64_t now) {
  const uint8_t kind = bytes.byte() % kinds;
  if (kind == tab) return actEvent(now, "tabs", {"tab", std::to_string(bytes.byte())});
  if (kind == endWeek) return actEvent(now, "nav", {"endTheWeekButton", ""});
  if (kind == back) return actEvent(now, "nav", {"back", ""});
  if (kind == launch) return launchEvent(now, bytes.byte());
  const Shown shown = session.shown();
  if (kind == foreign) {
    std::string id = bytes.text();
    return actEvent(now, std::to_string(shown.key), {std::move(id), bytes.text()});
  }
  const auto offered = printScreen(session.navigator(), shown, false).pressables;
  if (offered.empty()) return actEvent(now, "nav", {"back", ""});
  const Pressable& chosen = offered[bytes.byte() % offered.size()];
  Action action = chosen.action;
  if (kind == pressOption) action.value = std::to_string(bytes.byte());
  if (kind == pressWithText) action.value = bytes.text();
  return actEvent(now, chosen.screenKey, action);
}

}  // namespace
}  // namespace backbeat

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace backbeat;
  constexpr int mostPresses = 200;
  Bytewise bytes(data, size);
  MemoryStore store;
  settleInto(store, namedWorlds()[bytes.byte() % namedWorlds().size()]);
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  int64_t now = 1'672'660'800'000;
  career.play(launchEvent(now, 7));
  for (int presses = 0; bytes.any() && presses < mostPresses; ++presses) {
    now += 60'000;
    career.play(eventFrom(bytes, career.session(), now));
  }
  shownAsJson(career.session().navigator(), career.session().shown());
  if (!career.session().navigator().unknownSegues().empty()) std::abort();
  if (!differencesFromStore(career.session().game().state, store).empty()) std::abort();
  return 0;
}
