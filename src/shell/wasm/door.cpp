// The engine's only door to the page: bytes and 32-bit integers in and out. docs/page-protocol.md tells its use.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/career_file.h"
#include "core/json.h"
#include "shell/free_shop.h"
#include "shell/page_store.h"
#include "shell/session.h"
#include "shell/shown_json.h"
#include "shell/trace.h"

namespace backbeat {
namespace {

/// Everything that lives between two calls. One for the instance; the page makes a new instance to begin anew.
struct Door {
  FreeShop platform;
  PageStore store;
  std::string trace;  // of this launch, a line each
  TraceRecorder career{store, platform, [this](const std::string& line) { trace += line + "\n"; }};
  bool launched = false;
  std::unique_ptr<GameState> stored;  // what the rows hold, once asked for without a session
  std::string input;
  std::string answer;
  std::string batch;
};

Door& door() {
  static Door* const instance = new Door;  // never destroyed: the instance ends with the page
  return *instance;
}

std::string_view nextPart(std::string_view& text) {
  const size_t end = text.find('\0');
  const std::string_view part = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return part;
}

int64_t timeFrom(std::string_view unixMilliseconds) { return wholeNumber(unixMilliseconds).value_or(0); }

/// The running career, or the one in the rows that were handed in: an engine that the page does not dare to start can
/// still hand out what is stored.
const GameState& currentState() {
  Door& here = door();
  if (here.launched) return here.career.session().game().state;
  if (!here.stored) {
    here.stored = std::make_unique<GameState>();
    SaveFile(here.store).load(*here.stored);
  }
  return *here.stored;
}

std::string importAsJson(const ImportedCareer& career, const std::string& givesUp) {
  JsonWriter json;
  json.beginObject();
  json.key("problem").text(career.problem);
  json.key("missing").beginArray();
  for (const std::string& key : career.missing) json.text(key);
  json.endArray();
  json.key("mended").beginArray();
  for (const std::string& sentence : career.mended) json.text(sentence);
  json.endArray();
  json.key("givesUp").text(givesUp);
  json.endObject();
  return json.str();
}

void answer() {
  Door& here = door();
  const Session& session = here.career.session();
  Shown shown = session.shown();
  if (std::string product = here.platform.takeAsked(); !product.empty()) {
    shown.request = {.kind = Request::Kind::purchase, .product = std::move(product)};
  } else if (here.platform.takeReview()) {
    shown.request.kind = Request::Kind::review;
  }
  here.answer = shownAsJson(session.navigator(), shown);
  here.batch = here.store.takeBatch();
}

}  // namespace
}  // namespace backbeat

using backbeat::door;

extern "C" {

[[clang::export_name("bb_alloc")]] char* bb_alloc(uint32_t size) {
  door().input.assign(size, '\0');
  return door().input.data();
}

[[clang::export_name("bb_row")]] uint32_t bb_row(const char* bytes, uint32_t size) {
  return door().store.addRow({bytes, size}) ? 1 : 0;
}

[[clang::export_name("bb_hold_scores")]] void bb_hold_scores(const char* bytes, uint32_t size) {
  door().platform.hold({bytes, size});
}

[[clang::export_name("bb_scores")]] void bb_scores() { door().answer = door().platform.takeChanges(); }

[[clang::export_name("bb_start")]] void bb_start(const char* bytes, uint32_t size) {
  std::string_view text(bytes, size);
  const std::string_view seed = backbeat::nextPart(text);
  uint64_t number = 0;
  for (const char digit : seed) number = number * 10 + static_cast<uint64_t>(digit - '0');
  auto& here = door();
  here.store.giveChecks();
  if (here.store.holdsRows()) here.career.noteForeignCareer();
  here.career.play(backbeat::launchEvent(backbeat::timeFrom(backbeat::nextPart(text)), number));
  here.launched = true;
  here.store.dropRows();
  backbeat::answer();
}

[[clang::export_name("bb_act")]] void bb_act(const char* bytes, uint32_t size) {
  std::string_view text(bytes, size);
  const int64_t now = backbeat::timeFrom(backbeat::nextPart(text));
  std::string screen(backbeat::nextPart(text));
  std::string id(backbeat::nextPart(text));
  door().career.play(backbeat::actEvent(now, std::move(screen), {std::move(id), std::string(text)}));
  backbeat::answer();
}

[[clang::export_name("bb_ahead")]] void bb_ahead(const char* bytes, uint32_t size) {
  auto& here = door();
  const auto tab = backbeat::optionNumber({bytes, size}, backbeat::tabCount);
  const backbeat::Navigator& navigator = here.career.session().navigator();
  const auto root = tab ? navigator.ahead(*tab) : std::nullopt;
  here.answer = root ? backbeat::screenAsJson(navigator, *root) : "";
}

[[clang::export_name("bb_purchase")]] void bb_purchase(const char* bytes, uint32_t size) {
  std::string_view text(bytes, size);
  const int64_t now = backbeat::timeFrom(backbeat::nextPart(text));
  backbeat::PurchaseAnswer said;
  // A word that is none is no purchase: nothing may be credited for it.
  said.result =
      backbeat::purchaseResultFrom(backbeat::nextPart(text)).value_or(backbeat::PurchaseAnswer::Result::failed);
  said.product = backbeat::nextPart(text);
  said.transaction = backbeat::nextPart(text);
  said.free = text == "free";
  door().career.play(backbeat::purchaseEvent(now, std::move(said)));
  backbeat::answer();
}

[[clang::export_name("bb_trace")]] void bb_trace() { door().answer = door().trace; }

[[clang::export_name("bb_snapshot")]] void bb_snapshot(const char* bytes, uint32_t size) {
  std::string_view copy(bytes, size);
  const int64_t room = backbeat::wholeNumber(backbeat::nextPart(copy)).value_or(0);
  auto& here = door();
  if (here.launched) {
    here.store.measureSnapshot(copy, room);
  } else {
    here.store.addSnapshot(std::string(copy), room);
  }
}

[[clang::export_name("bb_spare")]] void bb_spare(const char* bytes, uint32_t size) {
  const auto copy = backbeat::dispensableSnapshot(door().store, {bytes, size});
  backbeat::JsonWriter json;
  json.beginObject();
  json.key("name").text(copy ? copy->name : "");
  json.key("told").text(copy ? copy->told() : "");
  json.endObject();
  door().answer = json.str();
}

[[clang::export_name("bb_give_up")]] void bb_give_up(const char* bytes, uint32_t size) {
  auto& here = door();
  here.store.dropSnapshot({bytes, size});
  here.batch = here.store.takeBatch();
}

[[clang::export_name("bb_export")]] void bb_export() {
  door().answer = backbeat::exportCareer(backbeat::currentState());
}

[[clang::export_name("bb_export_name")]] void bb_export_name() {
  door().answer = backbeat::exportFileName(backbeat::currentState());
}

[[clang::export_name("bb_import")]] void bb_import(const char* bytes, uint32_t size) {
  std::string_view file(bytes, size);
  const backbeat::Date now{static_cast<double>(backbeat::timeFrom(backbeat::nextPart(file))) / 1000};
  backbeat::ImportedCareer career = backbeat::importCareer(file);
  auto& here = door();
  constexpr auto kind = backbeat::SnapshotKind::import;
  here.answer = backbeat::importAsJson(
      career, career.state ? backbeat::planSnapshot(here.store, kind, backbeat::currentState()).told() : "");
  if (!career.state) return;
  backbeat::keepSnapshot(here.store, kind, backbeat::currentState(), now);
  here.store.commit(backbeat::rowsOf(*career.state));
  here.batch = here.store.takeBatch();
}

[[clang::export_name("bb_state_hash")]] void bb_state_hash() {
  auto& here = door();
  here.answer = backbeat::hashText(backbeat::stateHash(here.career.session().game().state));
}

[[clang::export_name("bb_out")]] const char* bb_out() { return door().answer.data(); }
[[clang::export_name("bb_out_size")]] uint32_t bb_out_size() { return static_cast<uint32_t>(door().answer.size()); }
[[clang::export_name("bb_batch")]] const char* bb_batch() { return door().batch.data(); }
[[clang::export_name("bb_batch_size")]] uint32_t bb_batch_size() { return static_cast<uint32_t>(door().batch.size()); }
}
