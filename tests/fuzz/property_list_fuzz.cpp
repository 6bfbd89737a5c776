// Any bytes read as a property list, and as everything that a save keeps in one.
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/record_codec.h"

namespace backbeat {
namespace {

/// Looks at everything below an object, but no deeper and no longer than a cycle would lead.
void walk(const PropertyListReader& reader, PropertyListReader::Ref ref, int depth, int& left) {
  if (depth == 0 || --left < 0) return;
  reader.integer(ref);
  reader.real(ref);
  reader.boolean(ref);
  reader.date(ref);
  reader.text(ref);
  reader.data(ref);
  if (const auto items = reader.array(ref)) {
    for (size_t i = 0; i < items->size() && left > 0; ++i) walk(reader, (*items)[i], depth - 1, left);
  }
  if (const auto entries = reader.dictionary(ref)) {
    for (size_t i = 0; i < entries->size() && left > 0; ++i) {
      walk(reader, entries->keys[i], depth - 1, left);
      walk(reader, entries->values[i], depth - 1, left);
    }
  }
}

/// What was read is written so that it reads the same.
template <class T>
void expectSameAgain(std::string_view bytes) {
  const auto value = decodeValue<T>(bytes);
  if (!value) return;
  PropertyListWriter writer;
  const Bytes written = encodeValue(writer, *value);
  const auto again = decodeValue<T>(written);
  if (!again || encodeValue(writer, *again) != written) std::abort();
}

}  // namespace
}  // namespace backbeat

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace backbeat;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto reader = PropertyListReader::open(bytes)) {
    int left = 2000;
    walk(*reader, reader->root(), 20, left);
  }
  expectSameAgain<std::string>(bytes);
  expectSameAgain<int64_t>(bytes);
  expectSameAgain<std::map<std::string, std::string>>(bytes);
  expectSameAgain<std::vector<int64_t>>(bytes);
  expectSameAgain<std::vector<Song>>(bytes);
  expectSameAgain<std::vector<Merch>>(bytes);
  return 0;
}
